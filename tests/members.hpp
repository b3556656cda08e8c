// Every exported member as something a test can call without knowing it:
// the declaration lists give each name with its parameter list, and a Call
// makes up arguments from the parameters' names and types (images and their
// steps from the name's layout, sizes, constants, orders, levels, outputs).
// Tests use it to run all members under different conditions (instruction
// set levels, thread counts) and compare what they wrote.
#pragma once

#include "guard.hpp"

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace zt {

class Call;

struct Param {
    std::string type; // without const, pointer and array marks: "Zel8u", "int", "ZeliSize"
    std::string name; // "pSrc", "srcStep", "roiSize", ...
    int extent = 0;   // n of a `name[n]` array parameter
    int pointers = 0; // levels of indirection
};

struct Member {
    std::string name;
    std::vector<Param> params;
    void* fn = nullptr;
    ZelStatus (*invoke)(void* fn, Call& c) = nullptr; // null for members that return no status
};

// All members of the declaration lists, in list order.
const std::vector<Member>& members();

// Arguments for one call of a member. Every buffer (images, constants,
// outputs) sits between guard pages; run() puts all buffers back to their
// first contents and calls the member, so calls can be repeated and compared.
class Call {
public:
    // size: the region of interest; seed: the contents of sources and outputs.
    Call(const Member& m, ZeliSize size, std::uint32_t seed, int scaleFactor = 0);
    ~Call();
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

    // False when a parameter has a name this harness does not know.
    bool supported() const { return why_.empty(); }
    const std::string& why() const { return why_; }

    ZelStatus run();
    // Every byte of every buffer, in parameter order. With canonicalNan, every
    // NaN of a float buffer reads as the processor's default NaN: which NaN an
    // addition of two NaN passes on depends on its operand order, which the
    // compiler may swap.
    std::vector<std::uint8_t> bytes(bool canonicalNan = false) const;

    // What a test needs to check a result: an image parameter's first
    // contents and its contents now, its step, size and channels a pixel.
    struct View {
        const std::uint8_t* first = nullptr; // before run()
        const std::uint8_t* now = nullptr;   // after run()
        int step = 0, channels = 0;
        ZeliSize size{};
        template <class T> T at0(int x, int y, int c) const { return get<T>(first, x, y, c); }
        template <class T> T at(int x, int y, int c) const { return get<T>(now, x, y, c); }
        // Sample i of row y (counting samples, not pixels).
        template <class T> T s0(int i, int y) const { return get<T>(first, i, y, 0, 1); }
        template <class T> T s(int i, int y) const { return get<T>(now, i, y, 0, 1); }
        template <class T> T get(const std::uint8_t* base, int x, int y, int c, int per = 0) const {
            T v;
            const std::size_t k = std::size_t(x) * std::size_t(per ? per : channels) + std::size_t(c);
            std::memcpy(&v, base + std::size_t(y) * step + k * sizeof(T), sizeof v);
            return v;
        }
    };
    bool has(const char* param) const { return index(param) >= 0; }
    View view(const char* param) const;
    // Element k of a constant: of a pointer parameter's first contents (an
    // array), or of a parameter passed by value (k > 0: the parts of a
    // complex value).
    template <class T> T element(const char* param, int k) const {
        T v;
        const int i = slot(param);
        const std::uint8_t* src = m_.params[i].pointers || m_.params[i].extent ? first_of(param) : slots_[i].scalar;
        std::memcpy(&v, src + std::size_t(k) * sizeof(T), sizeof v);
        return v;
    }
    // A parameter passed by value, and a new value for it before run().
    template <class T> T value(const char* param) const { return element<T>(param, 0); }
    template <class T> void set_value(const char* param, T v) { set(slot(param), v); }

    template <class A>
    A arg(int i) {
        if constexpr (std::is_pointer<A>::value) {
            return reinterpret_cast<A>(slots_[i].ptr);
        } else {
            A a;
            static_assert(sizeof(A) <= sizeof(Slot::scalar), "scalar argument too large");
            std::memcpy(&a, slots_[i].scalar, sizeof a);
            return a;
        }
    }

private:
    int index(const char* param) const; // -1 when there is none
    int slot(const char* param) const;  // throws when there is none
    const std::uint8_t* first_of(const char* param) const;
    struct Slot {
        alignas(8) unsigned char scalar[16] = {};
        void* ptr = nullptr;
        int buffer = -1; // index into buffers_ (or the first plane)
        int step = 0, channels = 0;
        ZeliSize size{};
    };
    struct Buffer;
    void build();
    int add_buffer(std::size_t bytes, int elemSize, const std::string& elem, int fill);
    void set_scalar(int i, const void* v, std::size_t n);
    template <class T>
    void set(int i, T v) { set_scalar(i, &v, sizeof v); }

    const Member& m_;
    ZeliSize size_;
    std::uint32_t seed_;
    int scaleFactor_;
    std::string why_;
    std::vector<Slot> slots_;
    std::vector<std::unique_ptr<Buffer>> buffers_;
    std::vector<std::vector<void*>> planeArrays_; // plane and level pointers, one array a parameter
};

template <class F>
struct Invoker;
template <class... A>
struct Invoker<ZelStatus (*)(A...)> {
    static ZelStatus call(void* fn, Call& c) { return go(fn, c, std::index_sequence_for<A...>{}); }
    template <std::size_t... I>
    static ZelStatus go(void* fn, Call& c, std::index_sequence<I...>) {
        return reinterpret_cast<ZelStatus (*)(A...)>(fn)(c.arg<A>(int(I))...);
    }
};

// Runs f() once at every instruction-set level this processor has, with the
// level forced, and restores the default level after.
template <class F>
void for_each_level(F&& f) {
    for (int l = 1; l <= zelGetIsaLevelMax(); ++l) {
        zelSetIsaLevel(l);
        f(l);
    }
    zelSetIsaLevel(0);
}

} // namespace zt
