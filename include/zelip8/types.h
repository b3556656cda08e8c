/* Sample types, geometry records, enumerations and status codes of libzelip8.
   Usable from C and C++. */
#ifndef ZELIP8_TYPES_H
#define ZELIP8_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Sample types ---------------------------------------------------- */
typedef uint8_t  Zel8u;
typedef int8_t   Zel8s;
typedef uint16_t Zel16u;
typedef int16_t  Zel16s;
typedef uint32_t Zel32u;
typedef int32_t  Zel32s;
typedef int64_t  Zel64s;
typedef uint64_t Zel64u;
typedef float    Zel32f;
typedef double   Zel64f;

/* Complex samples: real part first, imaginary part second. */
typedef struct { Zel16s re, im; } Zel16sc;
typedef struct { Zel16u re, im; } Zel16uc;
typedef struct { Zel32s re, im; } Zel32sc;
typedef struct { Zel32f re, im; } Zel32fc;
typedef struct { Zel64f re, im; } Zel64fc;

/* ---- Geometry -------------------------------------------------------- */
typedef struct { int width, height; } ZeliSize;        /* in pixels */
typedef struct { int x, y; } ZeliPoint;
typedef struct { int x, y, width, height; } ZeliRect;

/* ---- Status codes: 0 success, < 0 error (outputs untouched), > 0 warning */
typedef int ZelStatus;
enum {
    zelStatusPartialResult          = 48,
    zelStatusAntialiasIgnored       = 46,
    zelStatusEvenMedianWeight       = 39,
    zelStatusEmptyClip              = 30,
    zelStatusNoIntersection         = 29,
    zelStatusNotParallelogram       = 28,
    zelStatusLnNegativeWarning      = 8,
    zelStatusLnZeroWarning          = 7,
    zelStatusDivisionByZeroWarning  = 6,
    zelStatusSqrtNegativeWarning    = 3,
    zelStatusNoOperation            = 1,
    zelStatusOk                     = 0,
    zelStatusNoMemory               = -4,
    zelStatusBadArgument            = -5,
    zelStatusBadSize                = -6,
    zelStatusBadRange               = -7,
    zelStatusNullPointer            = -8,
    zelStatusMemAlloc               = -9,
    zelStatusDivisionByZero         = -10,
    zelStatusOutOfRange             = -11,
    zelStatusBadScaleRange          = -13,
    zelStatusBadStep                = -14,
    zelStatusBadFftOrder            = -15,
    zelStatusBadFftFlag             = -16,
    zelStatusContextMismatch        = -17,
    zelStatusBadThreshold           = -18,
    zelStatusZeroMoment             = -20,
    zelStatusBadAxis                = -21,
    zelStatusBadInterpolation       = -22,
    zelStatusBadResizeFactor        = -23,
    zelStatusBadTapCount            = -26, /* inner multi-rate filter routines */
    zelStatusBadPhase               = -28,
    zelStatusBadUpDownFactor        = -29,
    zelStatusBadMaskSize            = -33,
    zelStatusBadAnchor              = -34,
    zelStatusBadEpsilon             = -36,
    zelStatusShortStep              = -37,
    zelStatusBadChannelIndex        = -47,
    zelStatusBadAlphaType           = -50,
    zelStatusBadDivisor             = -51,
    zelStatusBadChannelCount        = -53,
    zelStatusBadCoefficients        = -56,
    zelStatusBadRect                = -57,
    zelStatusBadQuad                = -58,
    zelStatusEmptyMask              = -59,
    zelStatusBadChannelOrder        = -60,
    zelStatusBadLutLevels           = -106,
    zelStatusBadHistogramLevels     = -107,
    zelStatusBadStepMultiple        = -108,
    zelStatusBadNoise               = -125,
    zelStatusResizeTooSmall         = -201,
    zelStatusQualityUndefined       = -210,
    zelStatusBadWeight              = -211,
    zelStatusBadDecimateFactor      = -212,
    zelStatusBadRoundMode           = -213,
    zelStatusBadBorderType          = -225,
    zelStatusBadOffsetParity        = -227,
    zelStatusBadMode                = -9999
};

/* ---- Enumerations (passed as int) ------------------------------------ */
typedef int ZelRoundMode;
enum { zelRoundZero = 0, zelRoundNear = 1, zelRoundFinancial = 2 };

typedef int ZelHintAlgorithm;
enum { zelAlgHintNone = 0, zelAlgHintFast = 1, zelAlgHintAccurate = 2 };

typedef int ZelCmpOp;
enum { zelCmpLess = 0, zelCmpLessEq = 1, zelCmpEq = 2, zelCmpGreaterEq = 3, zelCmpGreater = 4 };

typedef int ZeliAxis;
enum { zelAxisHorizontal = 0, zelAxisVertical = 1, zelAxisBoth = 2 };

typedef int ZeliMaskSize;
enum { zelMask1x3 = 13, zelMask1x5 = 15, zelMask3x1 = 31, zelMask3x3 = 33,
       zelMask5x1 = 51, zelMask5x5 = 55 };

typedef int ZeliBorderType;
enum { zelBorderRepl = 1, zelBorderInMem = 6, zelBorderInMemTop = 16,
       zelBorderInMemBottom = 32, zelBorderInMemLeft = 64, zelBorderInMemRight = 128 };

typedef int ZeliInterpolation;
enum { zelInterNearest = 1, zelInterLinear = 2, zelInterCubic = 4,
       zelInterCubic2A = 5, zelInterCubic2B = 6, zelInterCubic2C = 7,
       zelInterSuper = 8, zelInterLanczos = 16 };
#define zelInterFlag29 ((int)0x20000000)
#define zelInterFlag30 ((int)0x40000000)
#define zelInterFlag31 ((int)0x80000000)

typedef int ZeliAlphaType;
enum { zelAlphaOver = 0, zelAlphaIn, zelAlphaOut, zelAlphaAtop, zelAlphaXor, zelAlphaPlus,
       zelAlphaOverPremul, zelAlphaInPremul, zelAlphaOutPremul, zelAlphaAtopPremul,
       zelAlphaXorPremul, zelAlphaPlusPremul };

typedef int ZelFftFlag;
enum { zelFftDivFwdByN = 1, zelFftDivInvByN = 2, zelFftDivBySqrtN = 4, zelFftNoDivByAny = 8 };

/* ---- Version ----------------------------------------------------------
   The version of this header, also that of the build's version record
   (zeliGetLibVersion: major, minor, majorBuild) and of the CMake and
   pkg-config packages, which read it from here. */
#define ZELIP8_VERSION_MAJOR 7
#define ZELIP8_VERSION_MINOR 1
#define ZELIP8_VERSION_PATCH 1
/* One number for comparisons: ZELIP8_VERSION >= ZELIP8_MAKE_VERSION(7, 1, 0). */
#define ZELIP8_MAKE_VERSION(major, minor, patch) ((major) * 10000 + (minor) * 100 + (patch))
#define ZELIP8_VERSION \
    ZELIP8_MAKE_VERSION(ZELIP8_VERSION_MAJOR, ZELIP8_VERSION_MINOR, ZELIP8_VERSION_PATCH)

/* Record of the running build. */
typedef struct {
    int major;
    int minor;
    int majorBuild;
    int build;
    char targetCpu[4];
    const char* name;
    const char* version;
    const char* buildDate;
} ZelLibraryVersion;

#ifdef __cplusplus
}
#endif

#endif /* ZELIP8_TYPES_H */
