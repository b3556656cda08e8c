// Image memory and the version record.
#include "core/frame.hpp"

namespace zel {

// zeliMalloc: rows start 64 bytes apart at the least. The step is computed
// wide: a step that does not fit an int, or a block whose size does not fit a
// size_t, is refused (null, step 0) rather than wrapped into a smaller block
// than the image needs.
template <class T, Layout L>
T* image_malloc(int width, int height, int* pStep) {
    if (!pStep) return nullptr;
    const unsigned long long pixel = sizeof(T) * channels(L);
    const unsigned long long step = (width < 1 || height < 1) ? 0 : (width * pixel + 63u) & ~63ull;
    if (step == 0 || step > 0x7fffffffull || step > std::size_t(-1) / unsigned(height)) {
        *pStep = 0;
        return nullptr;
    }
    *pStep = int(step);
    return static_cast<T*>(zelMalloc(std::size_t(step) * unsigned(height)));
}

inline void image_free(void* p) { zelFree(p); }

inline const ZelLibraryVersion* lib_version() {
    static const ZelLibraryVersion s_libVer_t = {ZELIP8_VERSION_MAJOR, ZELIP8_VERSION_MINOR, ZELIP8_VERSION_PATCH, 37466, {'p', '8', 0, 0}, "zelIP SSE4.1/4.2 (p8)+",
                                                 "7.1.1 (r37466)", "Sep 24 2012"};
    static const ZelLibraryVersion s_libVer = {ZELIP8_VERSION_MAJOR, ZELIP8_VERSION_MINOR, ZELIP8_VERSION_PATCH, 37466, {'p', '8', 0, 0}, "zelIP SSE4.1/4.2 (p8)",
                                               "7.1.1 (r37466)", "Sep 24 2012"};
    return ownGetFeature(128, 0) ? &s_libVer_t : &s_libVer;
}

} // namespace zel

#define ZEL_LIST "zelip8/fn_memory.h"
#include "core/define_list.hpp"
