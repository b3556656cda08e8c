// libzelcore: the text of every status code.
#include "zelcore.h"

extern "C" {

// Status texts: the name as it stands in zelip8/types.h, then what it means.
const char* zelGetStatusString(ZelStatus status) {
    switch (status) {
    case zelStatusPartialResult: return "zelStatusPartialResult: the tile reaches beyond the planned size; the part inside was written";
    case zelStatusAntialiasIgnored: return "zelStatusAntialiasIgnored: antialiasing has no effect with this interpolation and was ignored";
    case zelStatusEvenMedianWeight: return "zelStatusEvenMedianWeight: an even centre weight was taken as the next lower odd one";
    case zelStatusEmptyClip: return "zelStatusEmptyClip: nothing is left to draw after clipping; nothing was written";
    case zelStatusNoIntersection: return "zelStatusNoIntersection: the source region and the source image do not meet; nothing was written";
    case zelStatusNotParallelogram: return "zelStatusNotParallelogram: the quadrangle is no parallelogram; its first three corners were used";
    case zelStatusLnNegativeWarning: return "zelStatusLnNegativeWarning: a negative sample had no logarithm; the other results are valid";
    case zelStatusLnZeroWarning: return "zelStatusLnZeroWarning: a zero sample gave minus infinity or the lowest value; the rest is valid";
    case zelStatusDivisionByZeroWarning: return "zelStatusDivisionByZeroWarning: a divisor was zero (or tiny) and gave a fixed result; the rest is valid";
    case zelStatusSqrtNegativeWarning: return "zelStatusSqrtNegativeWarning: a negative sample had no square root; the other results are valid";
    case zelStatusNoOperation: return "zelStatusNoOperation: a size is zero or the result is empty; nothing to do";
    case zelStatusOk: return "zelStatusOk: success";
    case zelStatusNoMemory: return "zelStatusNoMemory: scratch memory could not be allocated";
    case zelStatusBadArgument: return "zelStatusBadArgument: an argument is outside its range";
    case zelStatusBadSize: return "zelStatusBadSize: a width or height is below 1, or too small for the operation";
    case zelStatusBadRange: return "zelStatusBadRange: the lower bound is above the upper bound";
    case zelStatusNullPointer: return "zelStatusNullPointer: a required pointer is NULL";
    case zelStatusMemAlloc: return "zelStatusMemAlloc: memory could not be allocated inside the call";
    case zelStatusDivisionByZero: return "zelStatusDivisionByZero: the constant divisor is zero";
    case zelStatusOutOfRange: return "zelStatusOutOfRange: a value is outside the range the function accepts";
    case zelStatusBadScaleRange: return "zelStatusBadScaleRange: the upper end of the range is not above the lower end";
    case zelStatusBadStep: return "zelStatusBadStep: a row step is not positive or too short for the row";
    case zelStatusBadFftOrder: return "zelStatusBadFftOrder: the transform order is outside the supported range";
    case zelStatusBadFftFlag: return "zelStatusBadFftFlag: the normalisation flag is not 1, 2, 4 or 8";
    case zelStatusContextMismatch: return "zelStatusContextMismatch: the state record is not one made for this operation";
    case zelStatusBadThreshold: return "zelStatusBadThreshold: the lower threshold is above the upper threshold";
    case zelStatusZeroMoment: return "zelStatusZeroMoment: the zeroth moment is too close to zero to normalise by";
    case zelStatusBadAxis: return "zelStatusBadAxis: the axis is not 0, 1 or 2";
    case zelStatusBadInterpolation: return "zelStatusBadInterpolation: the interpolation method or its flags are not accepted";
    case zelStatusBadResizeFactor: return "zelStatusBadResizeFactor: a resize factor is not positive";
    case zelStatusBadTapCount: return "zelStatusBadTapCount: the filter's tap count is not accepted";
    case zelStatusBadPhase: return "zelStatusBadPhase: the filter phase is outside its range";
    case zelStatusBadUpDownFactor: return "zelStatusBadUpDownFactor: the up or down sampling factor is outside its range";
    case zelStatusBadMaskSize: return "zelStatusBadMaskSize: the mask size is not accepted";
    case zelStatusBadAnchor: return "zelStatusBadAnchor: the anchor lies outside the mask";
    case zelStatusBadEpsilon: return "zelStatusBadEpsilon: the tolerance is below zero";
    case zelStatusShortStep: return "zelStatusShortStep: a row step is shorter than the bytes of a row";
    case zelStatusBadChannelIndex: return "zelStatusBadChannelIndex: the channel index is outside the record";
    case zelStatusBadAlphaType: return "zelStatusBadAlphaType: the alpha operation is above 11";
    case zelStatusBadDivisor: return "zelStatusBadDivisor: the integer divisor is zero";
    case zelStatusBadChannelCount: return "zelStatusBadChannelCount: the channel count is not one this function supports";
    case zelStatusBadCoefficients: return "zelStatusBadCoefficients: the transform coefficients collapse the rectangle";
    case zelStatusBadRect: return "zelStatusBadRect: the rectangle has no area";
    case zelStatusBadQuad: return "zelStatusBadQuad: the quadrangle cannot be used";
    case zelStatusEmptyMask: return "zelStatusEmptyMask: the mask holds no non-zero value";
    case zelStatusBadChannelOrder: return "zelStatusBadChannelOrder: a channel order entry is out of range";
    case zelStatusBadLutLevels: return "zelStatusBadLutLevels: a look-up table needs at least two levels";
    case zelStatusBadHistogramLevels: return "zelStatusBadHistogramLevels: a histogram needs at least two levels";
    case zelStatusBadStepMultiple: return "zelStatusBadStepMultiple: the row step is not a multiple of four";
    case zelStatusBadNoise: return "zelStatusBadNoise: the noise parameter is outside its range";
    case zelStatusResizeTooSmall: return "zelStatusResizeTooSmall: the result would be smaller than the format allows";
    case zelStatusQualityUndefined: return "zelStatusQualityUndefined: the quality index is undefined (its denominator is zero)";
    case zelStatusBadWeight: return "zelStatusBadWeight: the centre weight is below one";
    case zelStatusBadDecimateFactor: return "zelStatusBadDecimateFactor: the decimation factor is outside its range";
    case zelStatusBadRoundMode: return "zelStatusBadRoundMode: the round mode is not 0, 1 or 2";
    case zelStatusBadBorderType: return "zelStatusBadBorderType: the border type has a bit set that no border type uses";
    case zelStatusBadOffsetParity: return "zelStatusBadOffsetParity: the offset must be even";
    case zelStatusBadMode: return "zelStatusBadMode: the mode or operator is not supported";
    }
    return status < 0 ? "unknown error status: not a code of this library"
                      : "unknown warning status: not a code of this library";
}

} // extern "C"
