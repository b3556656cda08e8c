// The library exports exactly the names its declaration lists define, and
// every one of them is a name of the interface.
#include "guard.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

namespace {

std::set<std::string> exported_symbols() {
    std::set<std::string> out;
    std::string cmd = std::string(ZEL_NM) + " -D --defined-only " + ZEL_LIB_PATH;
    FILE* p = popen(cmd.c_str(), "r");
    if (!p) return out;
    char line[1024];
    while (fgets(line, sizeof line, p)) {
        std::istringstream is(line);
        std::string addr, type, name;
        if (!(is >> addr >> type >> name)) continue;
        if (type != "T" && type != "W") continue;
        auto at = name.find('@');
        if (at != std::string::npos) name.resize(at);
        out.insert(name);
    }
    pclose(p);
    return out;
}

TEST(Exports, LibraryMatchesRegistry) {
    const auto exported = exported_symbols();
    ASSERT_FALSE(exported.empty()) << "could not read the symbols of " << ZEL_LIB_PATH;
    std::set<std::string> registry;
    for (const char* n : zt::registry()) EXPECT_TRUE(registry.insert(n).second) << "listed twice: " << n;
    for (const auto& n : registry) EXPECT_TRUE(exported.count(n)) << "listed but not exported: " << n;
    for (const auto& n : exported) EXPECT_TRUE(registry.count(n)) << "exported but not listed: " << n;
}

// Against the full interface list when it is available beside the checkout.
TEST(Exports, NamesBelongToTheInterface) {
    std::ifstream tsv(ZEL_EXPORTS_TSV);
    if (!tsv) GTEST_SKIP() << "no interface list at " << ZEL_EXPORTS_TSV;
    std::set<std::string> all;
    std::string line;
    std::getline(tsv, line); // header
    while (std::getline(tsv, line)) all.insert(line.substr(0, line.find('\t')));
    const auto exported = exported_symbols();
    std::size_t known = 0;
    for (const auto& n : exported) {
        if (n.rfind("zeli", 0) != 0) continue;
        if (all.count(n)) ++known;
    }
    std::set<std::string> registry(zt::registry().begin(), zt::registry().end());
    for (const auto& n : exported) {
        if (n.rfind("zeli", 0) != 0) continue;
        EXPECT_TRUE(all.count(n) || registry.count(n)) << "unknown export: " << n;
    }
    std::printf("exported: %zu of %zu\n", known, all.size());
}

} // namespace
