#include "guard.hpp"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

namespace zt {

GuardedBuffer::GuardedBuffer(std::size_t bytes, Flush flush, std::size_t offset) : bytes_(bytes) {
    const std::size_t page = std::size_t(sysconf(_SC_PAGESIZE));
    const std::size_t body = (bytes + offset + page - 1) / page * page;
    mapBytes_ = body + 2 * page;
    map_ = mmap(nullptr, mapBytes_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (map_ == MAP_FAILED) throw std::runtime_error("mmap failed");
    std::uint8_t* first = static_cast<std::uint8_t*>(map_) + page;
    if (mprotect(first, body, PROT_READ | PROT_WRITE) != 0) throw std::runtime_error("mprotect failed");
    data_ = flush == Flush::Tail ? first + body - bytes : first + offset;
}

GuardedBuffer::GuardedBuffer(GuardedBuffer&& o) noexcept
    : map_(o.map_), mapBytes_(o.mapBytes_), data_(o.data_), bytes_(o.bytes_) {
    o.map_ = nullptr;
}

GuardedBuffer::~GuardedBuffer() {
    if (map_) munmap(map_, mapBytes_);
}

} // namespace zt
