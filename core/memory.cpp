// Image memory and the version record.
#include "core/frame.hpp"

namespace zel {

// zeliMalloc: rows start 64 bytes apart at the least. The products are plain
// 32-bit ones, as callers of this interface have always had them.
template <class T, Layout L>
T* image_malloc(int width, int height, int* pStep) {
    if (!pStep) return nullptr;
    if (width < 1 || height < 1) {
        *pStep = 0;
        return nullptr;
    }
    const std::uint32_t pixel = sizeof(T) * channels(L);
    const std::uint32_t step = (std::uint32_t(width) * pixel + 63u) & ~63u;
    *pStep = int(step);
    return static_cast<T*>(zelMalloc(std::uint32_t(height) * step));
}

inline void image_free(void* p) { zelFree(p); }

inline const ZelLibraryVersion* lib_version() {
    static const ZelLibraryVersion s_libVer_t = {7, 1, 1, 37466, {'p', '8', 0, 0}, "zelIP SSE4.1/4.2 (p8)+",
                                                 "7.1.1 (r37466)", "Sep 24 2012"};
    static const ZelLibraryVersion s_libVer = {7, 1, 1, 37466, {'p', '8', 0, 0}, "zelIP SSE4.1/4.2 (p8)",
                                               "7.1.1 (r37466)", "Sep 24 2012"};
    return ownGetFeature(128, 0) ? &s_libVer_t : &s_libVer;
}

} // namespace zel

#define ZEL_LIST "zelip8/fn_memory.h"
#include "core/define_list.hpp"
