#include "parser/failure.h"

#include "runtime/exceptions.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include <xercesc/util/OutOfMemoryException.hpp>

namespace {

struct Case {
    const char* name;
    void (*vThrow)();
    LoadFault fault;
    const char* attribute;
    const char* expected; ///< kind, place and reason
};

const LoadFault none;
const LoadFault malformed = {LoadFault::MALFORMED, "expected end of tag 'p'", 3, 7};
const LoadFault unreadable = {LoadFault::UNREADABLE, "no such file", 0, 0};
const LoadFault refused = {LoadFault::REFUSED, "too deep", 2, 1};

void vThrowUnavailable() {
    throw tessera::DataSourceUnavailableException("nothing to read");
}

void vThrowUnread() {
    throw tessera::ConversionException("caf\xE9");
}

const Case cases[] = {
    {"a fault of the load", vThrowUnavailable, malformed, nullptr, "3 at 3:7, 3:7: expected end of tag 'p'"},
    {"a fault without a place", vThrowUnavailable, unreadable, nullptr, "2 at 0:0, no such file"},
    {"a refusal", vThrowUnavailable, refused, nullptr, "4 at 2:1, 2:1: too deep"},
    {"a load that told no fault", vThrowUnavailable, none, nullptr, "8 at 0:0, nothing to read"},
    {"a value of an attribute", vThrowUnread, none, "ttp:frameRate", "5 at 0:0, ttp:frameRate: caf\xC3\xA9"},
    {"a value of none", vThrowUnread, none, nullptr, "5 at 0:0, caf\xC3\xA9"},
    {"lack of memory", [] { throw std::bad_alloc(); }, malformed, "begin", "7 at 0:0, out of memory"},
    {"lack of the XML library's", [] { throw xercesc::OutOfMemoryException(); }, none, nullptr,
     "7 at 0:0, out of memory"},
    {"any exception", [] { throw std::length_error("too long"); }, none, "begin", "8 at 0:0, too long"},
    {"what is no exception", [] { throw 1; }, none, nullptr, "8 at 0:0, unknown exception"},
};

std::string strDescribe(const Case& one) {
    try {
        one.vThrow();
    } catch (...) {
        const Failure failure = rDescribeException(one.fault, one.attribute);
        return std::to_string(failure.eKind) + " at " + std::to_string(failure.uLine) + ":" +
               std::to_string(failure.uColumn) + ", " + failure.strReason;
    }
    return "nothing thrown";
}

TEST(Failure, TellsTheKindThePlaceAndTheReason) {
    for (const Case& one : cases)
        EXPECT_EQ(strDescribe(one), one.expected) << one.name;
}

} // namespace
