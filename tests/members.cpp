#include "members.hpp"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>
#include <map>
#include <random>
#include <stdexcept>

namespace zt {

// ---- The members, from the lists ------------------------------------------------
namespace {

template <class R, class... A>
ZelStatus (*invoker_of(R (*)(A...)))(void*, Call&) {
    if constexpr (std::is_same<R, ZelStatus>::value) return &Invoker<ZelStatus (*)(A...)>::call;
    else return nullptr;
}

struct Raw {
    const char* name;
    const char* params;
    void* fn;
    ZelStatus (*invoke)(void*, Call&);
};

#define ZT_STR2(...) #__VA_ARGS__
#define ZT_STR(x) ZT_STR2 x
#define ZEL_FN(ret, name, params, args, impl) {#name, ZT_STR(params), reinterpret_cast<void*>(&name), invoker_of(&name)},
const Raw kRaw[] = {
#include "zelip8/lists.h"
};
#undef ZEL_FN

Param parse_param(std::string s) {
    Param p;
    for (char c : s) p.pointers += c == '*';
    const auto br = s.find('[');
    if (br != std::string::npos) {
        p.extent = std::atoi(s.c_str() + br + 1);
        s = s.substr(0, br);
    }
    std::vector<std::string> words;
    std::string w;
    for (char c : s + " ") {
        if (std::isalnum(static_cast<unsigned char>(c)) || c == '_') {
            w += c;
        } else if (!w.empty()) {
            if (w != "const") words.push_back(w);
            w.clear();
        }
    }
    if (words.size() >= 2) {
        p.type = words.front();
        p.name = words.back();
    }
    return p;
}

} // namespace

const std::vector<Member>& members() {
    static const std::vector<Member> all = [] {
        std::vector<Member> v;
        for (const Raw& r : kRaw) {
            Member m{r.name, {}, r.fn, r.invoke};
            std::string list = r.params, cur;
            int depth = 0;
            for (char c : list + ",") {
                if (c == '(' || c == '[') ++depth;
                if (c == ')' || c == ']') --depth;
                if (c == ',' && depth <= 0) {
                    if (cur.find_first_not_of(" ()") != std::string::npos && cur != " void" && cur != "void")
                        m.params.push_back(parse_param(cur));
                    cur.clear();
                } else if (!(c == '(' && depth == 1 && cur.empty()) && !(c == ')' && depth == 0)) {
                    cur += c;
                }
            }
            v.push_back(std::move(m));
        }
        return v;
    }();
    return all;
}

// ---- Layout of a member's images ------------------------------------------------------
namespace {

// Channels a pixel in memory for the source and the destination, from the
// name's descriptor (C1, C3, AC4, P3, C3P3, C1C3, C3CR, ...).
struct Layout {
    int src = 1, dst = 1;
    bool srcPlanar = false, dstPlanar = false;
};

Layout layout_of(const std::string& name) {
    std::string d = name.substr(name.rfind('_') + 1);
    for (const char* tail : {"Sfs", "R", "I", "M"})
        if (d.size() > std::strlen(tail) && d.compare(d.size() - std::strlen(tail), std::strlen(tail), tail) == 0)
            d.erase(d.size() - std::strlen(tail));
    std::vector<std::pair<char, int>> tokens; // 'C', 'P' with channels (AC4 as C4)
    for (std::size_t i = 0; i < d.size();) {
        if (d[i] == 'A' && i + 2 < d.size() + 1 && d[i + 1] == 'C') ++i;
        if ((d[i] == 'C' || d[i] == 'P') && i + 1 < d.size() && std::isdigit(static_cast<unsigned char>(d[i + 1]))) {
            tokens.push_back({d[i], d[i + 1] - '0'});
            i += 2;
        } else {
            ++i;
        }
    }
    Layout l;
    if (tokens.empty()) return l;
    l.src = tokens[0].second;
    l.srcPlanar = tokens[0].first == 'P';
    const auto& t = tokens.size() > 1 ? tokens[1] : tokens[0];
    l.dst = t.second;
    l.dstPlanar = t.first == 'P';
    return l;
}

int elem_size(const std::string& t) {
    static const std::map<std::string, int> sizes = {
        {"Zel8u", 1},  {"Zel8s", 1},  {"Zel16u", 2},  {"Zel16s", 2},  {"Zel32u", 4},  {"Zel32s", 4},  {"Zel32f", 4},
        {"Zel64s", 8}, {"Zel64f", 8}, {"Zel16sc", 4}, {"Zel32sc", 8}, {"Zel32fc", 8}, {"int", 4},      {"Zel64u", 8}};
    const auto it = sizes.find(t);
    return it == sizes.end() ? 0 : it->second;
}

bool is_float(const std::string& t) { return t == "Zel32f" || t == "Zel64f" || t == "Zel32fc"; }

bool starts(const std::string& s, const char* p) { return s.compare(0, std::strlen(p), p) == 0; }

} // namespace

// ---- Buffers ----------------------------------------------------------------------------
struct Call::Buffer {
    GuardedBuffer mem;
    std::vector<std::uint8_t> first;
    std::string elem;
    bool compared = true; // false: working store or a thread-dependent answer
    Buffer(std::size_t bytes, const std::string& e) : mem(bytes < 1 ? 1 : bytes), first(mem.size()), elem(e) {}
};

Call::Call(const Member& m, ZeliSize size, std::uint32_t seed, int scaleFactor)
    : m_(m), size_(size), seed_(seed), scaleFactor_(scaleFactor), slots_(m.params.size()),
      planeArrays_(m.params.size()) {
    if (!m.invoke) why_ = "returns no status";
    else build();
}

Call::~Call() = default;

void Call::set_scalar(int i, const void* v, std::size_t n) { std::memcpy(slots_[i].scalar, v, n); }

// Fill codes: 0 random samples of the element type, 1 random bytes, 2 zeros,
// 3 a mask (zero or not, half and half).
int Call::add_buffer(std::size_t bytes, int elemSize, const std::string& elem, int fill) {
    auto b = std::make_unique<Buffer>(bytes, elem);
    std::mt19937 rng(seed_ * 7919u + unsigned(buffers_.size()) * 104729u + 1u);
    std::uint8_t* p = b->mem.data();
    const std::size_t n = b->mem.size();
    if (fill == 2) {
        std::memset(p, 0, n);
    } else if (fill == 3) {
        for (std::size_t i = 0; i < n; ++i) p[i] = (rng() & 1) ? std::uint8_t(1 + rng() % 255) : 0;
    } else if (fill == 0 && is_float(elem)) {
        // Moderate values with some zeros, signed zeros, infinities, NaN and denormals.
        for (std::size_t i = 0; i + elemSize <= n; i += elemSize) {
            const unsigned r = rng() % 64;
            double v = (int(rng() % 20001) - 10000) / 8.0;
            if (r == 0) v = 0.0;
            else if (r == 1) v = -0.0;
            else if (r == 2) v = std::numeric_limits<double>::infinity();
            else if (r == 3) v = -std::numeric_limits<double>::infinity();
            else if (r == 4) v = std::numeric_limits<double>::quiet_NaN();
            else if (r == 5) v = 1e-40;
            if (elem == "Zel64f") std::memcpy(p + i, &v, 8);
            else {
                const float f = float(v);
                std::memcpy(p + i, &f, 4);
            }
        }
    } else {
        for (std::size_t i = 0; i < n; ++i) p[i] = std::uint8_t(rng());
    }
    std::memcpy(b->first.data(), p, n);
    buffers_.push_back(std::move(b));
    return int(buffers_.size()) - 1;
}

void Call::build() {
    const Layout lay = layout_of(m_.name);
    const auto& ps = m_.params;
    const int np = int(ps.size());
    std::mt19937 rng(seed_);
    auto find = [&](const char* name) {
        for (int i = 0; i < np; ++i)
            if (ps[i].name == name) return i;
        return -1;
    };
    auto type_of = [&](const char* name) { const int i = find(name); return i < 0 ? std::string() : ps[i].type; };

    // Sizes of the images: the region, or for border copies the source and
    // the destination with a frame around it; transposes swap the sides.
    ZeliSize srcSize = size_, dstSize = size_;
    int top = 0, left = 0;
    const bool border = find("topBorderHeight") >= 0;
    if (border) {
        top = int(rng() % 4), left = int(rng() % 4);
        dstSize = {size_.width + left + int(rng() % 4), size_.height + top + int(rng() % 4)};
    }
    if (starts(m_.name, "zeliTranspose")) {
        const std::string d = m_.name.substr(m_.name.rfind('_'));
        if (d.find('I') != std::string::npos) size_.height = size_.width; // in place: square
        srcSize = size_;
        dstSize = {size_.height, size_.width};
    }
    const bool bitSource = find("srcBitOffset") >= 0;
    const int bitOffset = int(rng() % 8);

    // Steps: the row's bytes plus a few samples.
    struct Img {
        ZeliSize size;
        int ch, esize, step;
        bool planar;
    };
    std::map<std::string, Img> imgs; // by image parameter name
    for (int i = 0; i < np; ++i) {
        const Param& p = ps[i];
        const bool image = p.pointers >= 1 && (starts(p.name, "pSrc") || starts(p.name, "pDst") || p.name == "pMask") &&
                           elem_size(p.type) > 0 && !(p.name == "pDst" && p.pointers == 1 && find("dstStep") < 0);
        if (!image) continue;
        const bool src = starts(p.name, "pSrc") && p.name != "pSrcDst";
        Img im{src ? srcSize : dstSize, src ? lay.src : lay.dst, elem_size(p.type), 0, src ? lay.srcPlanar : lay.dstPlanar};
        if (p.name == "pSrcDst" && border) im.size = dstSize;
        if (p.name == "pMask") im.ch = 1, im.esize = 1, im.planar = false;
        if (im.planar) im.ch = 1;
        long long rowBytes = (long long)im.size.width * im.ch * im.esize;
        if (bitSource && src) rowBytes = (bitOffset + im.size.width + 7) / 8;
        im.step = int(rowBytes + im.esize * int(rng() % 3) * (rng() % 2));
        imgs[p.name] = im;
    }
    // ---- Neighbourhood filters -------------------------------------------------------------
    // Masks, anchors, kernels, divisors and work buffers, and the frame of
    // source pixels a mask and anchor read: the source image is exactly that
    // frame, so a read one pixel beyond it traps. Own generator, so that the
    // other members keep their arguments.
    struct Nb {
        bool on = false;
        ZeliSize mask{1, 1};  // a box mask or a two-dimensional kernel
        ZeliPoint anchor{0, 0};
        int len = 1, anc = 0; // a one-dimensional mask or kernel
        int left = 0, top = 0, right = 0, bottom = 0;
    } nb;
    std::mt19937 frng(seed_ * 2654435761u + 17u);
    auto nb_pick = [&](int lo, int hi) { return lo + int(frng() % unsigned(hi - lo + 1)); };
    {
        const std::string& mn = m_.name;
        const bool box = starts(mn, "zeliFilterBox"), swRow = starts(mn, "zeliSumWindowRow"),
                   swCol = starts(mn, "zeliSumWindowColumn"), row1 = starts(mn, "zeliFilterRow"),
                   col1 = starts(mn, "zeliFilterColumn"),
                   two = starts(mn, "zeliFilter_") || starts(mn, "zeliFilter32f_") || mn.find("GetBufSize") != std::string::npos;
        nb.on = box || swRow || swCol || row1 || col1 || two;
        if (nb.on) {
            nb.mask = {nb_pick(1, 5), nb_pick(1, 5)};
            nb.anchor = {nb_pick(0, nb.mask.width - 1), nb_pick(0, nb.mask.height - 1)};
            nb.len = nb_pick(1, 7);
            nb.anc = nb_pick(0, nb.len - 1);
            if (box) nb.left = nb.anchor.x, nb.top = nb.anchor.y, nb.right = nb.mask.width - 1 - nb.anchor.x,
                     nb.bottom = nb.mask.height - 1 - nb.anchor.y;
            if (swRow) nb.left = nb.anc, nb.right = nb.len - 1 - nb.anc;
            if (swCol) nb.top = nb.anc, nb.bottom = nb.len - 1 - nb.anc;
            if (row1) nb.left = nb.len - 1 - nb.anc, nb.right = nb.anc;
            if (col1) nb.top = nb.len - 1 - nb.anc, nb.bottom = nb.anc;
            if (two) nb.left = nb.mask.width - 1 - nb.anchor.x, nb.top = nb.mask.height - 1 - nb.anchor.y,
                     nb.right = nb.anchor.x, nb.bottom = nb.anchor.y;
            for (const char* name : {"pSrc", "pSrcDst"}) {
                auto it = imgs.find(name);
                if (it == imgs.end()) continue;
                Img& im = it->second;
                const int extra = im.step - im.size.width * im.ch * im.esize;
                im.size = {im.size.width + nb.left + nb.right, im.size.height + nb.top + nb.bottom};
                im.step = im.size.width * im.ch * im.esize + extra;
            }
        }
    }
    auto image_of_step = [&](const std::string& stepName) -> std::string {
        const std::string base = stepName.substr(0, stepName.size() - 4); // without "Step"
        if (base == "mask") return "pMask";
        std::string n = "p" + base;
        n[1] = char(std::toupper(static_cast<unsigned char>(n[1])));
        return n;
    };

    // Values of the family's parameters, ordered where the rules need it.
    const std::string elem = [&] {
        for (const Param& p : ps)
            if (p.pointers >= 1 && (starts(p.name, "pSrc") || p.name == "pDst") && elem_size(p.type)) return p.type;
        return std::string("Zel8u");
    }();
    auto random_sample = [&](const std::string& t, double lo, double hi) {
        const double v = lo + (hi - lo) * double(rng() % 100000) / 99999.0;
        return is_float(t) ? v : std::floor(v);
    };
    auto type_range = [&](const std::string& t, double& lo, double& hi) {
        if (t == "Zel8u") lo = 0, hi = 255;
        else if (t == "Zel8s") lo = -128, hi = 127;
        else if (t == "Zel16u") lo = 0, hi = 65535;
        else if (t == "Zel16s") lo = -32768, hi = 32767;
        else if (t == "Zel32s" || t == "int") lo = -100000, hi = 100000;
        else if (t == "Zel32u") lo = 0, hi = 200000;
        else lo = -1000, hi = 1000;
    };
    auto store_value = [&](unsigned char* dst, const std::string& t, double v) {
        if (t == "Zel8u") { const std::uint8_t x = std::uint8_t(v); std::memcpy(dst, &x, 1); }
        else if (t == "Zel8s") { const std::int8_t x = std::int8_t(v); std::memcpy(dst, &x, 1); }
        else if (t == "Zel16u") { const std::uint16_t x = std::uint16_t(v); std::memcpy(dst, &x, 2); }
        else if (t == "Zel16s") { const std::int16_t x = std::int16_t(v); std::memcpy(dst, &x, 2); }
        else if (t == "Zel32s" || t == "int") { const std::int32_t x = std::int32_t(v); std::memcpy(dst, &x, 4); }
        else if (t == "Zel32u") { const std::uint32_t x = std::uint32_t(v); std::memcpy(dst, &x, 4); }
        else if (t == "Zel32f") { const float x = float(v); std::memcpy(dst, &x, 4); }
        else if (t == "Zel64f") { std::memcpy(dst, &v, 8); }
        else if (t == "Zel16sc") { const std::int16_t x[2] = {std::int16_t(v), std::int16_t(-v / 2)}; std::memcpy(dst, x, 4); }
        else if (t == "Zel32sc") { const std::int32_t x[2] = {std::int32_t(v), std::int32_t(-v / 2)}; std::memcpy(dst, x, 8); }
        else if (t == "Zel32fc") { const float x[2] = {float(v), float(-v / 2)}; std::memcpy(dst, x, 8); }
    };
    // A small constant buffer of `count` values (a pointer parameter).
    auto constant_buffer = [&](int i, int count, const std::vector<double>& values) {
        const std::string t = ps[i].type;
        const int es = elem_size(t);
        const int b = add_buffer(std::size_t(count) * es, es, t, 2);
        for (int k = 0; k < count; ++k) store_value(buffers_[b]->mem.data() + k * es, t, values[k % values.size()]);
        std::memcpy(buffers_[b]->first.data(), buffers_[b]->mem.data(), buffers_[b]->mem.size());
        slots_[i].ptr = buffers_[b]->mem.data();
        slots_[i].buffer = b;
    };
    // An ordered pair of values of the family's sample type.
    auto ordered = [&](const std::string& t, int n) {
        double lo, hi;
        type_range(t, lo, hi);
        std::vector<double> v;
        for (int k = 0; k < n; ++k) v.push_back(random_sample(t, lo, hi));
        std::sort(v.begin(), v.end());
        return v;
    };
    const int levels = 2 + int(rng() % 15);
    std::vector<double> bounds = ordered(type_of("lowerBound").empty() ? elem : type_of("lowerBound"), 2);
    std::vector<double> thr = ordered(elem, 2);
    std::vector<double> vrange = ordered("Zel32f", 2);
    if (vrange[0] == vrange[1]) vrange[1] += 1;

    // Values of the filters' own parameters; false for a parameter of another kind.
    auto nb_param = [&](int i) {
        const Param& p = ps[i];
        const std::string& n = p.name;
        if (n == "maskSize" || n == "kernelSize") {
            if (p.type == "ZeliSize") set(i, nb.mask);
            else set(i, nb.len);
        } else if (n == "anchor") {
            if (p.type == "ZeliPoint") set(i, nb.anchor);
            else set(i, nb.anc);
        } else if (n == "xAnchor" || n == "yAnchor") {
            set(i, nb.anc);
        } else if (n == "divisor") {
            const int ds[] = {1, 2, 4, 3, 5, -3, 7, 9, 16, 10, -1};
            set(i, ds[frng() % 11]);
        } else if (n == "dstWidth") {
            set(i, size_.width);
        } else if (n == "pKernel") {
            const int count = find("kernelSize") >= 0 && type_of("kernelSize") == "ZeliSize" ? nb.mask.width * nb.mask.height : nb.len;
            std::vector<double> v;
            for (int k = 0; k < count; ++k) {
                if (is_float(p.type)) v.push_back((int(frng() % 129) - 64) / 64.0);
                else if (p.type == "Zel16s") v.push_back(int(frng() % 41) - 20);
                else v.push_back(int(frng() % 11) - 4);
            }
            constant_buffer(i, count, v);
        } else if (n == "pBuffer") {
            // sized by the member's query for eight threads; working store, not compared
            std::string q = m_.name;
            const std::string from = starts(q, "zeliFilter_Round") ? "zeliFilter_Round" : "zeliFilter_";
            q.replace(0, from.size(), from == "zeliFilter_" ? "zeliFilterGetBufSize_" : "zeliFilterRoundGetBufSize");
            int bytes = 0;
            for (const Member& o : members())
                if (o.name == q) reinterpret_cast<ZelStatus (*)(ZeliSize, int, int*)>(o.fn)(nb.mask, size_.width, &bytes);
            const int threads = ownGetNumThreads();
            const int b = add_buffer(std::size_t(bytes > 0 ? bytes / threads * (threads > 8 ? threads : 8) : 1), 1, p.type, 1);
            buffers_[b]->compared = false;
            slots_[i].ptr = buffers_[b]->mem.data();
            slots_[i].buffer = b;
        } else if (n == "pBufferSize") {
            // the size depends on the thread count of the query
            const int b = add_buffer(4, 4, p.type, 1);
            buffers_[b]->compared = false;
            slots_[i].ptr = buffers_[b]->mem.data();
            slots_[i].buffer = b;
        } else {
            return false;
        }
        return true;
    };

    for (int i = 0; i < np; ++i) {
        const Param& p = ps[i];
        const std::string& n = p.name;
        if (nb.on && nb_param(i)) continue;
        double lo, hi;
        type_range(p.type, lo, hi);
        if (imgs.count(n)) {
            const Img& im = imgs[n];
            const std::size_t span = std::size_t(im.size.height - 1) * im.step +
                                     (bitSource && starts(n, "pSrc") ? std::size_t((bitOffset + im.size.width + 7) / 8)
                                                                     : std::size_t(im.size.width) * im.ch * im.esize);
            const int fill = n == "pMask" ? 3 : (starts(n, "pDst") ? 1 : 0);
            const bool inPlaceBorder = border && n == "pSrcDst";
            if (p.extent > 0 || p.pointers == 2) {
                const int planes = p.extent > 0 ? p.extent : (im.planar ? lay.dstPlanar ? lay.dst : lay.src : 1);
                for (int k = 0; k < planes; ++k) {
                    const int b = add_buffer(span, im.esize, p.type, fill);
                    planeArrays_[i].push_back(buffers_[b]->mem.data());
                    if (k == 0) slots_[i].buffer = b;
                }
                slots_[i].ptr = planeArrays_[i].data();
            } else {
                const int b = add_buffer(span, im.esize, p.type, fill);
                slots_[i].buffer = b;
                slots_[i].step = im.step, slots_[i].channels = im.ch, slots_[i].size = im.size;
                std::uint8_t* base = buffers_[b]->mem.data();
                if (inPlaceBorder) base += std::size_t(top) * im.step + std::size_t(left) * im.ch * im.esize;
                if (nb.on && (n == "pSrc" || n == "pSrcDst")) base += std::size_t(nb.top) * im.step + std::size_t(nb.left) * im.ch * im.esize;
                slots_[i].ptr = base;
            }
        } else if (n.size() > 4 && n.compare(n.size() - 4, 4, "Step") == 0 && p.pointers == 0) {
            const auto it = imgs.find(image_of_step(n));
            if (it == imgs.end()) return void(why_ = "step without image: " + n);
            set(i, it->second.step);
        } else if (p.type == "ZeliSize") {
            set(i, n == "srcRoiSize" ? srcSize : n == "dstRoiSize" ? dstSize : size_);
        } else if (n == "topBorderHeight") {
            set(i, top);
        } else if (n == "leftBorderWidth") {
            set(i, left);
        } else if (n == "scaleFactor") {
            set(i, scaleFactor_);
        } else if (n == "roundMode" || n == "rndMode" || n == "hint" || n == "flip") {
            set(i, int(rng() % 3));
        } else if (n == "zelCmpOp") {
            // thresholds take less and greater only
            set(i, starts(m_.name, "zeliThreshold") ? int(rng() % 2) * 4 : int(rng() % 5));
        } else if (n == "flags") {
            set(i, int(rng() % 4));
        } else if (n == "srcBitOffset") {
            set(i, bitOffset);
        } else if (n == "dstOrder") {
            std::vector<double> order = {0, 1, 2, 3};
            std::shuffle(order.begin(), order.begin() + (p.extent == 4 ? 4 : 3), rng);
            if (p.extent == 4 && rng() % 2) order[rng() % 4] = 3;
            constant_buffer(i, p.extent, order);
        } else if (n == "eps") {
            store_value(slots_[i].scalar, p.type, double(rng() % 100) / 10.0);
        } else if (n == "vMin" || n == "vMax") {
            store_value(slots_[i].scalar, p.type, n == "vMin" ? vrange[0] : vrange[1]);
        } else if (n == "lowerBound" || n == "upperBound") {
            const double v = n == "lowerBound" ? bounds[0] : bounds[1];
            if (p.pointers || p.extent) constant_buffer(i, std::max(p.extent, 4), {v});
            else store_value(slots_[i].scalar, p.type, v);
        } else if (n == "threshold" || n == "thresholdLT" || n == "thresholdGT" || n == "value" || n == "val" ||
                   n == "valueLT" || n == "valueGT") {
            const double v = n == "thresholdLT" ? thr[0] : n == "thresholdGT" ? thr[1]
                                                                                 : random_sample(p.type, lo, hi);
            if (p.pointers || p.extent) {
                std::vector<double> vs;
                for (int k = 0; k < 4; ++k)
                    vs.push_back(n == "thresholdLT" || n == "thresholdGT" ? v : random_sample(p.type, lo, hi));
                constant_buffer(i, std::max(p.extent, 4), vs);
            } else {
                store_value(slots_[i].scalar, p.type, v);
            }
        } else if (n == "nLevels") {
            if (p.extent || p.pointers) constant_buffer(i, std::max(p.extent, 1), {double(levels)});
            else set(i, levels);
        } else if (n == "lowerLevel" || n == "upperLevel") {
            const double v = n == "lowerLevel" ? std::min(bounds[0], 0.0) : std::max(bounds[1], 1.0);
            if (p.extent || p.pointers) constant_buffer(i, std::max(p.extent, 1), {v});
            else store_value(slots_[i].scalar, p.type, v);
        } else if (n == "pLevels" || n == "pHist") {
            // per channel: `levels` sorted levels, or levels - 1 counts out
            const int count = n == "pLevels" ? levels : levels - 1;
            const int planes = p.extent > 0 ? p.extent : 1;
            const bool in = n == "pLevels" && find("pHist") >= 0 && p.type != "int" &&
                            !starts(m_.name, "zeliHistogramEven");
            for (int k = 0; k < planes; ++k) {
                const int es = elem_size(p.type);
                const int b = add_buffer(std::size_t(count) * es, es, p.type, 2);
                if (in) {
                    std::vector<double> v = ordered(p.type, count);
                    for (int j = 0; j < count; ++j) store_value(buffers_[b]->mem.data() + j * es, p.type, v[j] + j * 1e-3);
                    std::memcpy(buffers_[b]->first.data(), buffers_[b]->mem.data(), buffers_[b]->mem.size());
                }
                planeArrays_[i].push_back(buffers_[b]->mem.data());
                if (k == 0) slots_[i].buffer = b;
            }
            slots_[i].ptr = p.extent > 0 ? static_cast<void*>(planeArrays_[i].data())
                                         : planeArrays_[i][0];
        } else if (n == "ppSrcList" || n == "pCoeffs" || n == "srcCount" || n == "len" ||
                   (n == "pDst" && find("len") >= 0)) {
            // a list of 2 * height vectors of `width` samples, their weights, the output vector
            const int count = 2 * size_.height, len = size_.width, es = elem_size(p.type);
            if (n == "srcCount" || n == "len") set(i, n == "len" ? len : count);
            else if (n == "pCoeffs") constant_buffer(i, count, {0.5, -3.25, 7.0, 1.0 / 3, -0.125});
            else if (n == "pDst") slots_[i].buffer = add_buffer(std::size_t(len) * es, es, p.type, 1);
            for (int k = 0; n == "ppSrcList" && k < count; ++k)
                planeArrays_[i].push_back(buffers_[add_buffer(std::size_t(len) * es, es, p.type, 0)]->mem.data());
            if (n == "pDst") slots_[i].ptr = buffers_[slots_[i].buffer]->mem.data();
            if (n == "ppSrcList") slots_[i].ptr = planeArrays_[i].data();
        } else if ((p.pointers == 1 || (p.pointers == 0 && p.extent > 0)) && elem_size(p.type) > 0) {
            // outputs: results of statistics, indices, counts
            const int es = elem_size(p.type);
            const int b = add_buffer(std::size_t(std::max(p.extent, 4)) * es, es, p.type, 1);
            slots_[i].ptr = buffers_[b]->mem.data();
            slots_[i].buffer = b;
        } else {
            return void(why_ = "parameter " + p.type + " " + n);
        }
    }
}

int Call::index(const char* param) const {
    for (std::size_t i = 0; i < m_.params.size(); ++i)
        if (m_.params[i].name == param) return int(i);
    return -1;
}

int Call::slot(const char* param) const {
    const int i = index(param);
    if (i < 0) throw std::invalid_argument(m_.name + " has no parameter " + param);
    return i;
}

const std::uint8_t* Call::first_of(const char* param) const {
    const Slot& s = slots_[slot(param)];
    const Buffer& b = *buffers_[s.buffer];
    return b.first.data() + (static_cast<const std::uint8_t*>(s.ptr) - b.mem.data());
}

Call::View Call::view(const char* param) const {
    const Slot& s = slots_[slot(param)];
    View v;
    v.first = first_of(param);
    v.now = static_cast<const std::uint8_t*>(s.ptr);
    v.step = s.step, v.channels = s.channels, v.size = s.size;
    return v;
}

ZelStatus Call::run() {
    for (auto& b : buffers_) std::memcpy(b->mem.data(), b->first.data(), b->first.size());
    return m_.invoke(m_.fn, *this);
}

std::vector<std::uint8_t> Call::bytes(bool canonicalNan) const {
    std::vector<std::uint8_t> all;
    for (const auto& b : buffers_) {
        if (!b->compared) continue;
        const std::size_t at = all.size(), n = b->mem.size();
        all.insert(all.end(), b->mem.data(), b->mem.data() + n);
        if (!canonicalNan) continue;
        if (b->elem == "Zel32f" || b->elem == "Zel32fc") {
            for (std::size_t i = 0; i + 4 <= n; i += 4) {
                float f;
                std::memcpy(&f, &all[at + i], 4);
                if (std::isnan(f)) std::memcpy(&all[at + i], "\x00\x00\xc0\xff", 4);
            }
        } else if (b->elem == "Zel64f") {
            for (std::size_t i = 0; i + 8 <= n; i += 8) {
                double d;
                std::memcpy(&d, &all[at + i], 8);
                if (std::isnan(d)) std::memcpy(&all[at + i], "\x00\x00\x00\x00\x00\x00\xf8\xff", 8);
            }
        }
    }
    return all;
}

} // namespace zt
