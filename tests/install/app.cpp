// Links an installed libzelip8 the way a user's C++17 program does.
#include <zelip8.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

int main() {
    int step = 0;
    std::unique_ptr<Zel32f, void (*)(void*)> img(zeliMalloc_32f_C1(16, 4, &step), zeliFree);
    const ZeliSize roi{16, 4};
    std::vector<Zel8u> mask(16 * 4);
    ZelStatus st = zeliSet_32f_C1R(1.5f, img.get(), step, roi);
    if (st == zelStatusOk) st = zeliCompareC_32f_C1R(img.get(), step, 1.0f, mask.data(), 16, roi, zelCmpGreater);
    const std::string text = zelGetStatusString(st);
    std::printf("C++: %s, mask[63] = %d\n", text.c_str(), mask[63]);
    return st == zelStatusOk && mask[63] == 255 && text.rfind("zelStatusOk", 0) == 0 ? 0 : 1;
}
