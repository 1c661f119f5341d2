#include "xmltree/prolog.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace std::string_literals;

TEST(Prolog, IsPlainWhenTheRootElementIsPlainlyTheFirstDeclaration) {
    const struct {
        std::string bytes;
        bool isPlain;
    } cases[] = {
        {"<tt/>", true},
        {"\xEF\xBB\xBF<tt/>", true},
        {"<?xml version='1.0'?>\r\n\t <tt/>", true},
        {"<?xml version='1.0' encoding='UTF-8'?><tt/>", true},
        {"<?xml version='1.0' encoding='utf-8'?><?pi ?><!-- <!DOCTYPE > -->\n<!----><tt/>", true},
        {"<tt><!DOCTYPE tt></tt>", true}, // not well-formed, so that it is parsed again
        {"", false},
        {"<", false},
        {"text", false},
        {" <tt/>", false},
        {"<!DOCTYPE tt><tt/>", false},
        {"<!-- <tt/> --><!DOCTYPE tt><tt/>", false},
        {"<?pi <tt/> ?><!DOCTYPE tt><tt/>", false},
        {"<!-- <tt/>", false},
        {"<?pi <tt/>", false},
        {"<!--><tt/>", false},
        {"<?xml version='1.0' encoding='UTF-7'?><tt/>", false},
        {"<?xml version='1.0' encoding='UTF-16'?><!-- UTF-8 --><tt/>", false},
        {"\xFF\xFE<\0t\0t\0/\0>\0"s, false},
        {"<\0t\0t\0/\0>\0"s, false},
        {"\0<\0t\0t\0/\0>"s, false},
        {"\x4C\xA3\xA3\x61\x6E", false}, // in EBCDIC
    };
    for (const auto& c : cases) {
        EXPECT_EQ(HasPlainProlog(c.bytes), c.isPlain) << c.bytes;
    }
}

} // namespace
