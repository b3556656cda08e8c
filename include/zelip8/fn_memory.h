/* Image memory and version.
   zeliMalloc_<type>_<layout>(width, height, &step): a block whose rows start
   64 bytes apart at the least; the row step goes to *step (0 for a bad size).
   zeliFree releases it. zeliGetLibVersion describes this build.

   Checks: none of these returns a status. zeliMalloc_* return NULL and a step
   of 0 for a width or height below 1, and for an image whose row step does not
   fit an int or whose size does not fit the address space; NULL with the step
   stored when the memory is not there; NULL for a NULL step pointer.

   Example:
       int step = 0;
       Zel8u* img = zeliMalloc_8u_C3(640, 480, &step); // step 1920
       ZelStatus st = img ? zelStatusOk : zelStatusMemAlloc;
       zeliFree(img);
*/
#define ZEL_MALLOC(T, L)                                                              \
    ZEL_FN(Zel##T*, zeliMalloc_##T##_##L, (int widthPixels, int heightPixels, int* pStepBytes), \
           (widthPixels, heightPixels, pStepBytes), (zel::image_malloc<Zel##T, zel::L>))
#define ZEL_MALLOC_ALL(T) ZEL_MALLOC(T, C1) ZEL_MALLOC(T, C2) ZEL_MALLOC(T, C3) ZEL_MALLOC(T, C4) ZEL_MALLOC(T, AC4)
ZEL_MALLOC_ALL(8u)
ZEL_MALLOC_ALL(16u)
ZEL_MALLOC_ALL(16s)
ZEL_MALLOC_ALL(32s)
ZEL_MALLOC_ALL(32f)
ZEL_MALLOC_ALL(32sc)
ZEL_MALLOC_ALL(32fc)
#undef ZEL_MALLOC_ALL
#undef ZEL_MALLOC

ZEL_FN(void, zeliFree, (void* ptr), (ptr), (zel::image_free))
ZEL_FN(const ZelLibraryVersion*, zeliGetLibVersion, (void), (), (zel::lib_version))
