// Running window sums of the box filter and the sliding sums, compiled once
// per level (read by core/simd/levels.hpp inside each level's namespace;
// includes nothing).
//
// A band of destination rows keeps one column sum a sample of the frame's
// row (the sum of the mH samples under it) and moves it down a row at a time.
// A destination row is then the sum of mW column sums a pixel apart, which
// fin_kernels.hpp turns into samples.
//
// Integer sums are exact in 32-bit unsigned lanes (they wrap like the
// column sums they stand for), so their grouping is free: the column sums
// enter and leave by running differences from the band's first row, and the
// horizontal sums run along the row by differences, a vector at a time
// through a strided prefix sum (a few vector steps a sample whatever the
// mask), or are direct sums for narrow masks.
//
// Float sums (32f, 64f) are formed in an order fixed by the sample's
// position alone, the same at every level, thread count and alignment:
//  - column sums: for mH <= 4 the plain sum of the mH samples, top to bottom;
//    otherwise a running sum ((c + entering) - leaving) that restarts with a
//    plain sum at every row that is a multiple of restart_block(mH), so a band
//    starting anywhere reproduces it by running from the last restart;
//  - horizontal sums: for mW <= 12 the plain sum of the mW column sums, left
//    to right; otherwise a running sum ((s + entering) - leaving) per channel
//    that restarts with a plain sum every 64 pixels from the row's start.

// Column sums of frame row y: col[i] = bias * mH + the mH samples below.
// (Float sums take no bias: adding 0 would turn -0 into +0.)
template <class T, class Acc>
inline void col_fresh(Acc* col, const T* const* rows, int mH, int nc, Acc bias) {
    using V = Vec<Acc>;
    constexpr int L = V::kLanes;
    constexpr bool biased = !std::is_floating_point<Acc>::value;
    int i = 0;
    for (; i + L <= nc; i += L) {
        V c = load_conv<V>(rows[0] + i);
        if constexpr (biased) c = c + set1<V>(Acc(bias * Acc(mH)));
        for (int k = 1; k < mH; ++k) c = c + load_conv<V>(rows[k] + i);
        store(col + i, c);
    }
    for (; i < nc; ++i) {
        Acc c = Acc(rows[0][i]);
        if constexpr (biased) c = c + Acc(bias * Acc(mH));
        for (int k = 1; k < mH; ++k) c = c + Acc(rows[k][i]);
        col[i] = c;
    }
}

// col[i] = (col[i] + in[i]) - out[i]: the window moves down a row.
template <class T, class Acc>
inline void col_move(Acc* col, const T* in, const T* out, int nc) {
    using V = Vec<Acc>;
    constexpr int L = V::kLanes;
    int i = 0;
    for (; i + L <= nc; i += L) store(col + i, (load<V>(col + i) + load_conv<V>(in + i)) - load_conv<V>(out + i));
    for (; i < nc; ++i) col[i] = (col[i] + Acc(in[i])) - Acc(out[i]);
}

// Horizontal float sums of long windows: per channel, a running sum that
// restarts every kSegment pixels.
template <int CH, class Acc>
inline void row_running(Acc* sums, const Acc* col, int width, int mW) {
    for (int x0 = 0; x0 < width; x0 += filt::kSegment) {
        const int x1 = x0 + filt::kSegment < width ? x0 + filt::kSegment : width;
        for (int c = 0; c < CH; ++c) {
            Acc s = col[x0 * CH + c];
            for (int q = 1; q < mW; ++q) s = s + col[(x0 + q) * CH + c];
            sums[x0 * CH + c] = s;
            for (int x = x0 + 1; x < x1; ++x) {
                s = (s + col[(x + mW - 1) * CH + c]) - col[(x - 1) * CH + c];
                sums[x * CH + c] = s;
            }
        }
    }
}

// Copies the first n samples of a ring row to the image (AC: alpha stays).
template <bool AC, class D>
inline void flush_row(D* img, const D* ring, int n) {
    using V = Vec<D>;
    constexpr int L = V::kLanes;
    for (int i = 0; i < n; i += L) put<AC>(img + i, load<V>(ring + i), n - i);
}

// Destination rows y0 .. y0 + rows - 1 of a box or sliding sum. The frame of
// row y starts at frame row y (src is the frame's origin); in place (ring > 0)
// rows go to a ring of `ring` rows first and reach the image once no later
// window reads the image row they replace.
template <class T, class Acc, int CH, Rule R, class D, bool AC>
void box_rows(const filt::BoxJob& j, const filt::BoxState<Acc, D>& st, int y0, int rows) {
    using V = Vec<Acc>;
    constexpr bool flt = std::is_floating_point<Acc>::value;
    const int n = j.width * CH, nc = (j.width + j.mW - 1) * CH, mW = j.mW, mH = j.mH;
    const Acc bias = Acc(j.bias);
    const T* src = static_cast<const T*>(j.src);
    D* dst = static_cast<D*>(j.dst);
    auto frow = [&](int y) { return row(src, j.srcStep, y); };
    // Plain column sums of frame row y: up to kFreshRows rows at once, the
    // rest added one row at a time (the same order as one plain sum).
    auto start = [&](int y) {
        const T* rs[filt::kFreshRows];
        const int k = mH < filt::kFreshRows ? mH : filt::kFreshRows;
        for (int q = 0; q < k; ++q) rs[q] = frow(y + q);
        col_fresh<T, Acc>(st.col, rs, k, nc, bias);
        for (int q = k; q < mH; ++q) {
            const T* r = frow(y + q);
            int i = 0;
            const V b = set1<V>(bias); // 0 for float sums, which take no bias
            for (; i + V::kLanes <= nc; i += V::kLanes) {
                V x = load_conv<V>(r + i);
                if constexpr (!flt) x = x + b;
                store(st.col + i, load<V>(st.col + i) + x);
            }
            for (; i < nc; ++i) st.col[i] = st.col[i] + (flt ? Acc(r[i]) : Acc(Acc(r[i]) + bias));
        }
    };
    const bool freshEach = flt ? mH <= filt::kFreshHFloat : mH <= filt::kFreshHInt;
    const int blk = flt ? filt::restart_block(mH) : 0;
    if (!freshEach) {
        int yb = y0;
        if (flt) yb = y0 - y0 % blk;
        start(yb);
        for (int y = yb; y < y0; ++y) col_move<T, Acc>(st.col, frow(y + mH), frow(y), nc);
    }
    const int ring = j.ringRows;
    // Into the image with its alpha kept, or into the ring (alpha is kept on the way out).
    auto emit = [&](D* out, auto&& sum) {
        if (ring) finish_row<R, D, false, V>(out, n, j.fin, sum);
        else finish_row<R, D, AC, V>(out, n, j.fin, sum);
    };
    for (int y = y0; y < y0 + rows; ++y) {
        if (freshEach) start(y);
        else if (y > y0) {
            if (flt && y % blk == 0) start(y);
            else col_move<T, Acc>(st.col, frow(y - 1 + mH), frow(y - 1), nc);
        }
        D* out;
        if (ring) {
            if (y - ring >= 0) flush_row<AC>(row(dst, j.dstStep, y - ring), st.ring + std::size_t((y - ring) % ring) * j.ringStride, n);
            out = st.ring + std::size_t(y % ring) * j.ringStride;
        } else {
            out = row(dst, j.dstStep, y);
        }
        const Acc* col = st.col;
        if (flt ? mW <= filt::kFreshWFloat : mW <= filt::kFreshW) {
            emit(out, [&](int i) ZEL_VL {
                V s = load<V>(col + i);
                for (int q = 1; q < mW; ++q) s = s + load<V>(col + i + q * CH);
                return s;
            });
        } else if constexpr (flt) {
            row_running<CH, Acc>(st.sums, col, j.width, mW);
            emit(out, [&](int i) ZEL_VL { return load<V>(st.sums + i); });
        } else {
            // S(x) = S(x - CH) + col[x + (mW - 1) CH] - col[x - CH], in vectors by a
            // strided prefix sum of the differences; col[-CH..-1] reads 0, so the
            // sums before the row, S(-CH..-1), are the mW - 1 column sums after them.
            alignas(64) Acc first[V::kLanes] = {};
            for (int c = 0; c < CH; ++c)
                for (int q = 1; q < mW; ++q) first[V::kLanes - CH + c] += col[c - CH + q * CH];
            V carry = load<V>(first);
            const int far = (mW - 1) * CH;
            emit(out, [&](int i) ZEL_VL {
                carry = scan_add<CH>(load<V>(col + i + far) - load<V>(col + i - CH)) + repeat_last<CH>(carry);
                return carry;
            });
        }
    }
    if (ring) {
        const int last = y0 + rows;
        for (int y = last - ring < y0 ? y0 : last - ring; y < last; ++y)
            flush_row<AC>(row(dst, j.dstStep, y), st.ring + std::size_t(y % ring) * j.ringStride, n);
    }
}
