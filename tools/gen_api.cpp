// Writes the plain public header include/zelip8.h and the function reference
// doc/reference.md from the declaration lists include/zelip8/fn_*.h, and the
// program that runs the reference's worked calls.
//
//   zelip8_gen_api <source dir> write          rewrite both files
//   zelip8_gen_api <source dir> check          fail when either file is stale
//   zelip8_gen_api <source dir> calls <file>   write the worked calls as C
//
// The lists stay the one source: every ZEL_FN entry becomes one prototype,
// grouped by family under the leading comment of its list file. That comment
// is also the reference's text: its first sentence is the section title,
// a paragraph starting "Checks:" gives the statuses in the order they are
// tested, and the indented lines after "Example:" are a worked call that
// declares `ZelStatus st` (run by the test `reference_calls`).
#include "zelcore.h"
#include "zelip8/types.h"

#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Entry {
    const char* file;
    const char* ret;
    const char* name;
    const char* params;
};

#define ZEL_STR_(...) #__VA_ARGS__
#define ZEL_STR(...) ZEL_STR_(__VA_ARGS__)
const Entry kEntries[] = {
#define ZEL_FN(ret, name, params, args, impl) {__FILE__, ZEL_STR(ret), #name, ZEL_STR(params)},
#include "zelip8/lists.h"
#undef ZEL_FN
};

const char* const kTypeTokens[] = {"8u", "8s", "16u", "16s", "32u", "32s", "64s", "32f", "64f",
                                   "16sc", "16uc", "32sc", "32fc", "64fc", "1u", "24u"};

// ---- Text helpers ------------------------------------------------------------
std::string replace_all(std::string s, const std::string& from, const std::string& to) {
    for (std::size_t at = 0; (at = s.find(from, at)) != std::string::npos; at += to.size()) s.replace(at, from.size(), to);
    return s;
}

std::string trim(const std::string& s) {
    std::size_t a = s.find_first_not_of(" \t\n"), b = s.find_last_not_of(" \t\n");
    return a == std::string::npos ? std::string() : s.substr(a, b - a + 1);
}

std::string basename(const std::string& path) { return path.substr(path.find_last_of('/') + 1); }

bool read_file(const std::string& path, std::string& out) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    std::ostringstream ss;
    ss << in.rdbuf();
    out = ss.str();
    return true;
}

// Parameters as one spaced list: "(const Zel8u* pSrc, int srcStep)".
std::string tidy_params(std::string p) {
    p = replace_all(p, " ,", ",");
    p = replace_all(p, "( ", "(");
    return replace_all(p, " )", ")");
}

// One prototype, broken at commas so that no line passes 100 columns.
std::string prototype(const std::string& lead, const Entry& e) {
    std::string p = tidy_params(e.params);
    std::string head = lead + e.ret + " " + e.name;
    if (head.size() + p.size() + 1 <= 100) return head + p + ";\n";
    std::vector<std::string> parts;
    std::string inner = p.substr(1, p.size() - 2), cur;
    std::istringstream is(inner);
    while (std::getline(is, cur, ',')) parts.push_back(trim(cur));
    std::string out = head + "(\n", line;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        std::string piece = parts[i] + (i + 1 < parts.size() ? "," : ");");
        if (!line.empty() && line.size() + 1 + piece.size() > 100) {
            out += line + "\n";
            line.clear();
        }
        line += line.empty() ? "    " + piece : " " + piece;
    }
    return out + line + "\n";
}

// ---- Names -----------------------------------------------------------------
// zeliThreshold_LTValGTVal_8u_C1R: family zeliThreshold, variant LTValGTVal,
// type 8u, descriptor C1R. Names without a type token are their own family.
struct Name {
    std::string family, variant, type, descriptor;
};

bool is_type_token(const std::string& t) {
    for (const char* k : kTypeTokens) {
        std::string s(k);
        if (t == s) return true;
        if (t.compare(0, s.size(), s) == 0) // double token such as 8u32f
            for (const char* k2 : kTypeTokens)
                if (t == s + k2) return true;
    }
    return false;
}

Name split_name(const std::string& n) {
    std::vector<std::string> tok;
    std::string t;
    std::istringstream is(n);
    while (std::getline(is, t, '_')) tok.push_back(t);
    Name out{tok[0], "", "", ""};
    std::size_t typeAt = tok.size();
    for (std::size_t i = 1; i < tok.size(); ++i)
        if (is_type_token(tok[i])) typeAt = i;
    for (std::size_t i = 1; i < typeAt && i < tok.size(); ++i) out.variant += (out.variant.empty() ? "" : "_") + tok[i];
    if (typeAt < tok.size()) out.type = tok[typeAt];
    for (std::size_t i = typeAt + 1; i < tok.size(); ++i) out.descriptor += (out.descriptor.empty() ? "" : "_") + tok[i];
    return out;
}

// ---- Lists and their documentation -------------------------------------------
struct Family {
    std::string name;
    std::vector<const Entry*> members;
};

struct List {
    std::string file;
    std::string comment; // the leading comment, without the comment markers
    std::string title, text, checks, example;
    std::vector<Family> families;
};

// The leading /* ... */ block of a list file, each line without its indent of three.
std::string leading_comment(const std::string& src) {
    std::size_t a = src.find("/*"), b = src.find("*/");
    if (a == std::string::npos || b == std::string::npos) return "";
    std::string body = src.substr(a + 2, b - a - 2), line, out;
    std::istringstream is(body);
    bool first = true;
    while (std::getline(is, line)) {
        if (!first && line.compare(0, 3, "   ") == 0) line = line.substr(3);
        out += (first ? trim(line) : line) + "\n";
        first = false;
    }
    return out;
}

void parse_doc(List& l) {
    std::istringstream is(l.comment);
    std::string line, *into = &l.text;
    while (std::getline(is, line)) {
        if (line.compare(0, 7, "Checks:") == 0) {
            into = &l.checks;
            line = trim(line.substr(7));
        } else if (trim(line) == "Example:") {
            into = &l.example;
            continue;
        } else if (into == &l.checks && trim(line).empty()) {
            into = &l.text;
        }
        if (into == &l.example) line = line.compare(0, 4, "    ") == 0 ? line.substr(4) : trim(line);
        *into += line + "\n";
    }
    std::size_t dot = l.text.find('.');
    l.title = trim(l.text.substr(0, dot));
    l.text = trim(l.text.substr(dot + 1));
    l.checks = trim(replace_all(l.checks, "\n", " "));
    l.example = trim(l.example);
}

bool load_lists(const std::string& srcDir, std::vector<List>& lists) {
    for (const Entry& e : kEntries) {
        std::string file = basename(e.file);
        if (lists.empty() || lists.back().file != file) {
            lists.push_back(List{file, "", "", "", "", "", {}});
            std::string src;
            if (!read_file(srcDir + "/include/zelip8/" + file, src)) {
                std::fprintf(stderr, "cannot read %s/include/zelip8/%s\n", srcDir.c_str(), file.c_str());
                return false;
            }
            lists.back().comment = leading_comment(src);
            parse_doc(lists.back());
        }
        auto& fams = lists.back().families;
        std::string fam = split_name(e.name).family;
        std::size_t i = 0;
        while (i < fams.size() && fams[i].name != fam) ++i;
        if (i == fams.size()) fams.push_back(Family{fam, {}});
        fams[i].members.push_back(&e);
    }
    return true;
}

// ---- The header ----------------------------------------------------------------
const char* const kHeaderTop =
    "/* libzelip8: image-processing primitives for x86 processors with SSE4.1/4.2.\n"
    "\n"
    "   Every function works on a region of interest of buffers the caller owns:\n"
    "   a pointer to its first sample, a row step in bytes and a ZeliSize in pixels.\n"
    "   Functions return a ZelStatus: 0 success, negative error (outputs untouched),\n"
    "   positive warning (outputs valid); zelGetStatusString names each one. Names\n"
    "   follow one grammar: zeli<Family>_<variant>_<type>_<layout>[I][M]R[Sfs].\n"
    "   doc/reference.md explains the grammar, the argument order and each family.\n"
    "\n"
    "   Generated from the declaration lists include/zelip8/fn_*.h by\n"
    "   tools/gen_api.cpp (cmake --build <dir> --target zelip8_api): edit the\n"
    "   lists, not this file. */\n"
    "#ifndef ZELIP8_H\n"
    "#define ZELIP8_H\n"
    "\n"
    "#include \"zelcore.h\"\n"
    "#include \"zelip8/types.h\"\n"
    "\n"
    "#if defined(ZELIP8_BUILD)\n"
    "#define ZELAPI __attribute__((visibility(\"default\")))\n"
    "#else\n"
    "#define ZELAPI\n"
    "#endif\n"
    "\n"
    "#ifdef __cplusplus\n"
    "extern \"C\" {\n"
    "#endif\n";

const char* const kHeaderEnd =
    "\n"
    "#ifdef __cplusplus\n"
    "}\n"
    "#endif\n"
    "\n"
    "#endif /* ZELIP8_H */\n";

std::string header(const std::vector<List>& lists) {
    std::string out = kHeaderTop;
    for (const List& l : lists) {
        out += "\n/* ==== " + l.title + " ";
        out += std::string(l.title.size() < 60 ? 66 - l.title.size() : 4, '=') + "\n\n   ";
        std::string body = trim(l.comment.substr(l.comment.find('.') + 1));
        out += replace_all(body, "\n", "\n   ") + " */\n";
        out = replace_all(out, "   \n", "\n");
        for (const Family& f : l.families) {
            out += "\n/* " + f.name + " */\n";
            for (const Entry* e : f.members) out += prototype("ZELAPI ", *e);
        }
    }
    return out + kHeaderEnd;
}

// ---- The reference -------------------------------------------------------------
const char* const kReferenceTop = R"(# libzelip8 function reference

Generated from the declaration lists `include/zelip8/fn_*.h` by
`tools/gen_api.cpp` together with `include/zelip8.h`; edit the lists, then
run `cmake --build <dir> --target zelip8_api`. The prototypes of every
member are in `include/zelip8.h`, under the same headings as here.

## Reading a name

A name says what a function takes and does:
`zeli` + family + `_` + variant tokens + `_` + sample type + `_` + descriptor,
for instance `zeliAdd_8u_C1RSfs` or `zeliThreshold_LTValGTVal_16u_AC4R`.

| Type | C type | Sample |
|---|---|---|
| `8u`, `8s` | `Zel8u`, `Zel8s` | unsigned, signed 8-bit |
| `16u`, `16s` | `Zel16u`, `Zel16s` | unsigned, signed 16-bit |
| `32u`, `32s`, `64s` | `Zel32u`, `Zel32s`, `Zel64s` | 32-bit unsigned, signed; 64-bit signed |
| `32f`, `64f` | `Zel32f`, `Zel64f` | IEEE float, double |
| `16sc`, `32sc`, `32fc` | `Zel16sc`, `Zel32sc`, `Zel32fc` | complex: real part, then imaginary part |

Two type tokens (`8u32f`) name the source type first, the destination type second.

The descriptor is read left to right: layout, then `I`, `M`, `R`, `Sfs`.

| Token | Meaning |
|---|---|
| `C1` | one channel |
| `C3`, `C4` | three or four interleaved channels, all processed alike |
| `AC4` | four interleaved channels, the fourth alpha: only the first three are processed and the destination's alpha keeps its value; a constant argument has three entries |
| `P3`, `P4` | three or four separate planes: an array of plane pointers with one common step |
| `C3P3`, `P3C3`, `C3C1`, `C1C3`, `C3CR`, ... | from one layout to another; `CR` is a channel of interest, both pointers addressing one sample of the first pixel |
| `R` | works on a region of interest given by a `ZeliSize` in pixels, with row steps in bytes |
| `I` | in place: the destination is also a source |
| `M` | a `Zel8u` mask with its own step follows the size; a pixel is written only where its mask byte is not zero |
| `Sfs` | integer result scaled: the last argument `scaleFactor` multiplies by 2^-scaleFactor, rounds to nearest (ties to even) and saturates |

Row steps are signed byte counts from one row to the next, for every sample
type; rows need no alignment. `zeliMalloc_*` gives rows 64 bytes apart.

## Argument order

1. Sources, each pointer followed by its row step; the first operand first.
2. A constant (`...C` families) right behind the source: by value for `C1`,
   otherwise a pointer to 3 (`C3`, `AC4`) or 4 (`C4`) values. In place, it
   comes first of all. `zeliSet` puts its value first.
3. The destination pointer and its step. In `I` forms the in-place image takes
   the destination's place and is the last image.
4. The `ZeliSize` of the region of interest.
5. The mask pointer and mask step of `M` forms.
6. The family's own parameters (operator, round mode, hint, levels).
7. `scaleFactor` last in `Sfs` forms.

## Statuses

`0` is success; a negative status is an error and nothing was written; a
positive status is a warning and the outputs are valid. Checks stop at the
first failure, in the order each family gives below. `zelGetStatusString(st)`
returns the name and meaning of any status (never `NULL`).

| Code | Name and meaning |
|---|---|
)";

const char* const kReferenceThreads = R"(
## Threads and memory

Calls on large images run on OpenMP threads above a size of their own family;
`zelSetNumThreads(n)` limits every call to `n` threads (a value below 1
restores the default, the number of processors) and `zelGetNumThreads()`
tells the limit. Results do not depend on the thread count. The library keeps
no state between calls and may be called from several threads at once.
Scratch memory taken inside a call is freed before it returns.
)";

// Members of one list by function and variant (zeliThreshold_LTValGTVal), in
// list order: the first member, and the forms of each type.
struct Row {
    std::string key;
    const Entry* first;
    std::vector<std::pair<std::string, std::string>> types;
};

std::vector<Row> rows_of(const List& l) {
    std::vector<Row> rows;
    for (const Family& f : l.families)
        for (const Entry* e : f.members) {
            Name n = split_name(e->name);
            std::string key = n.variant.empty() ? n.family : n.family + "_" + n.variant;
            std::size_t r = 0;
            while (r < rows.size() && rows[r].key != key) ++r;
            if (r == rows.size()) rows.push_back(Row{key, e, {}});
            auto& types = rows[r].types;
            std::size_t t = 0;
            while (t < types.size() && types[t].first != n.type) ++t;
            if (t == types.size()) types.push_back({n.type, ""});
            types[t].second += (types[t].second.empty() ? "" : " ") + n.descriptor;
        }
    return rows;
}

std::string members_table(const std::vector<Row>& rows) {
    std::string out = "| Function | Type: forms |\n|---|---|\n";
    for (const Row& row : rows) {
        // Types with the same forms share one entry: `8u`, `16s`: C1R C3R.
        std::vector<std::pair<std::string, std::string>> merged;
        for (const auto& t : row.types) {
            std::string type = t.first.empty() ? "" : "`" + t.first + "`";
            std::size_t m = 0;
            while (m < merged.size() && merged[m].second != t.second) ++m;
            if (m == merged.size()) merged.push_back({type, t.second});
            else merged[m].first += ", " + type;
        }
        std::string cell;
        for (const auto& t : merged)
            cell += (cell.empty() ? "" : "; ") + (t.first.empty() ? std::string("no tokens") : t.first + ": " + t.second);
        out += "| `" + row.key + "` | " + cell + " |\n";
    }
    return out;
}

// Comment text as Markdown: no HTML tags or emphasis out of <type> and *step.
std::string markdown(std::string text) {
    text = replace_all(text, "<", "&lt;");
    return replace_all(text, "*", "\\*");
}

std::string reference(const std::vector<List>& lists) {
    std::string out = kReferenceTop;
    for (int code = -10000; code <= 1000; ++code) {
        std::string s = zelGetStatusString(code);
        std::size_t colon = s.find(": ");
        if (s.compare(0, 9, "zelStatus") != 0 || colon == std::string::npos) continue;
        out += "| " + std::to_string(code) + " | `" + s.substr(0, colon) + "`: " + s.substr(colon + 2) + " |\n";
    }
    out += kReferenceThreads;
    out += "\n## Families\n\n";
    for (const List& l : lists) out += "- [" + l.title + "](#" + l.file.substr(0, l.file.size() - 2) + ")\n";
    for (const List& l : lists) {
        std::size_t count = 0;
        for (const Family& f : l.families) count += f.members.size();
        out += "\n<a id=\"" + l.file.substr(0, l.file.size() - 2) + "\"></a>\n";
        out += "## " + l.title + "\n\n";
        out += markdown(l.text) + "\n\n";
        if (!l.checks.empty()) out += "**Checks and statuses:** " + markdown(l.checks) + "\n\n";
        out += "**Members** (" + std::to_string(count) + ", list `include/zelip8/" + l.file + "`):\n\n";
        const std::vector<Row> rows = rows_of(l);
        out += members_table(rows) + "\n";
        out += "**Argument order**, the first member of each function:\n\n```c\n";
        for (const Row& row : rows) out += prototype("", *row.first);
        out += "```\n";
        if (!l.example.empty()) out += "\n**A worked call:**\n\n```c\n" + l.example + "\n```\n";
    }
    return out;
}

// ---- The worked calls as one program ---------------------------------------
std::string calls(const std::vector<List>& lists) {
    std::string out =
        "/* The worked calls of doc/reference.md, each in a function of its own.\n"
        "   Generated by tools/gen_api.cpp; compiled as C and as C++. */\n"
        "#include <stdio.h>\n#include <string.h>\n#include <zelip8.h>\n\n";
    std::string runs;
    int n = 0;
    for (const List& l : lists) {
        if (l.example.empty()) continue;
        std::string fn = "example_" + std::to_string(n++);
        out += "static ZelStatus " + fn + "(void) { /* " + l.file + " */\n    ";
        out += replace_all(l.example, "\n", "\n    ") + "\n    return st;\n}\n\n";
        runs += "    failures += check(\"" + l.file + "\", " + fn + "());\n";
    }
    out += "static int check(const char* list, ZelStatus st) {\n"
           "    printf(\"%-14s %s\\n\", list, zelGetStatusString(st));\n"
           "    return st != zelStatusOk;\n}\n\n"
           "int main(void) {\n    int failures = 0;\n" + runs +
           "    return failures != 0;\n}\n";
    return out;
}

bool write_file(const std::string& path, const std::string& text) {
    std::ofstream out(path, std::ios::binary);
    out << text;
    return bool(out);
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s <source dir> write|check|calls <file>\n", argv[0]);
        return 2;
    }
    const std::string src = argv[1], mode = argv[2];
    std::vector<List> lists;
    if (!load_lists(src, lists)) return 2;
    const std::map<std::string, std::string> files = {{src + "/include/zelip8.h", header(lists)},
                                                      {src + "/doc/reference.md", reference(lists)}};
    if (mode == "calls" && argc > 3) return write_file(argv[3], calls(lists)) ? 0 : 1;
    int stale = 0;
    for (const auto& f : files) {
        std::string now;
        if (read_file(f.first, now) && now == f.second) continue;
        if (mode == "write") {
            if (!write_file(f.first, f.second)) return 1;
            std::printf("wrote %s\n", f.first.c_str());
        } else {
            std::fprintf(stderr, "%s is not what the declaration lists give: "
                                 "run cmake --build <dir> --target zelip8_api\n", f.first.c_str());
            ++stale;
        }
    }
    return stale ? 1 : 0;
}
