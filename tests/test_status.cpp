// Every status code of zelip8/types.h has its own text, which starts with the
// code's name; codes the library does not know get a generic text, never NULL.
#include "guard.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <string>

namespace {

std::map<int, std::string> codes_in_header() {
    std::ifstream in(ZEL_TYPES_H);
    std::stringstream ss;
    ss << in.rdbuf();
    const std::string text = ss.str();
    std::map<int, std::string> out;
    const std::regex entry(R"((zelStatus\w+)\s*=\s*(-?\d+))");
    for (std::sregex_iterator it(text.begin(), text.end(), entry), end; it != end; ++it)
        out[std::stoi((*it)[2])] = (*it)[1];
    return out;
}

TEST(Status, EveryCodeHasItsNameAndMeaning) {
    const auto codes = codes_in_header();
    ASSERT_GE(codes.size(), 50u) << "could not read the codes of " << ZEL_TYPES_H;
    for (const auto& c : codes) {
        const char* s = zelGetStatusString(c.first);
        ASSERT_NE(s, nullptr) << c.second;
        const std::string text(s), lead = c.second + ": ";
        EXPECT_EQ(text.compare(0, lead.size(), lead), 0) << c.first << " gives \"" << text << "\"";
        EXPECT_GT(text.size(), lead.size() + 5) << c.second << " has no meaning";
    }
}

TEST(Status, UnknownCodesGetAGenericText) {
    const auto codes = codes_in_header();
    for (int code : {-100000, -10000, -9998, -300, -12, -2, 2, 5, 47, 49, 1000, 0x7fffffff, int(0x80000000)}) {
        if (codes.count(code)) continue;
        const char* s = zelGetStatusString(code);
        ASSERT_NE(s, nullptr);
        const std::string text(s);
        EXPECT_EQ(text.find("zelStatus"), std::string::npos) << code << ": " << text;
        EXPECT_NE(text.find(code < 0 ? "error" : "warning"), std::string::npos) << code << ": " << text;
    }
    for (int code = -10000; code <= 100; ++code) {
        if (!codes.count(code)) {
            ASSERT_EQ(std::string(zelGetStatusString(code)).rfind("unknown", 0), 0u) << code;
        }
    }
}

} // namespace
