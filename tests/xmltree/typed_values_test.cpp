#include "runtime/date_time.h"
#include "runtime/duration.h"
#include "runtime/exceptions.h"
#include "runtime/formatters.h"
#include "tests/xmltree/sample_document.h"

#include <gtest/gtest.h>

namespace {

using tessera::MemberInfo;
using tessera::XmlFormatter;

const XmlFormatter* const dateSlot = &tessera::Exported_DateFormatter;
const XmlFormatter* const integerSlot = &tessera::Exported_IntegerFormatter;
const XmlFormatter* const hexSlot = &tessera::Exported_HexBinaryFormatter;

enum Type : std::uint32_t { NO_FORMATTER, DATE, INTEGER, HEX };

tessera::TypeInfo TypeWith(const XmlFormatter* const* slot) {
    return {nullptr, 0, "", -1, 0, 0, -1, tessera::WhitespaceType::INHERITED, slot};
}

const tessera::TypeInfo types[] = {TypeWith(nullptr), TypeWith(&dateSlot), TypeWith(&integerSlot),
                                   TypeWith(&hexSlot)};
const tessera::InfoBinder binder = {nullptr, types, nullptr, nullptr};

MemberInfo Typed(Type type) {
    MemberInfo member = Attribute("", "v");
    member.binder = &binder;
    member.dataType = type;
    return member;
}

TEST(TypedValues, ReadsConvertTheText) {
    const SampleDocument sample(
        "<v t=' true ' i='-7' u='17' d='1.5' f='yes' b='QUI=' date='2011-03-15' dur='P1Y'/>");
    const auto at = [&sample](const char* name) { return Tree::FindAttribute(sample.Root(), "", name); };
    const MemberInfo any = Typed(NO_FORMATTER);
    EXPECT_EQ(Tree::CastToString(at("t"), any), " true ");
    EXPECT_TRUE(Tree::CastToBool(at("t"), any));
    EXPECT_EQ(Tree::CastToInt(at("i"), any), -7);
    EXPECT_EQ(Tree::CastToInt64(at("i"), any), -7);
    EXPECT_EQ(Tree::CastToUInt(at("u"), any), 17u);
    EXPECT_EQ(Tree::CastToUInt64(at("u"), any), 17u);
    EXPECT_EQ(Tree::CastToDouble(at("d"), any), 1.5);
    EXPECT_EQ(Tree::CastToBinary(at("b"), any), (std::vector<unsigned char>{'A', 'B'}));
    EXPECT_EQ(Tree::CastToBinary(at("u"), Typed(HEX)), (std::vector<unsigned char>{0x17}));
    EXPECT_EQ(Tree::CastToDateTime(at("date"), any).Day(), 15);
    EXPECT_TRUE(Tree::CastToDuration(at("dur"), any).IsPositive());
    EXPECT_THROW(Tree::CastToBool(at("f"), any), tessera::StringParseException);
    EXPECT_THROW(Tree::CastToUInt64(at("i"), any), tessera::OutOfRangeException);
}

TEST(TypedValues, WritesUseTheFormatterOfTheMember) {
    const SampleDocument sample("<v/>");
    const auto written = [&sample](Type type, const auto& value) {
        const MemberInfo member = Typed(type);
        Tree::SetValue(sample.Root(), member, value);
        return Tree::GetTextValue(Tree::FindAttribute(sample.Root(), member));
    };
    const tessera::DateTime date(2011, 3, 15, 0, 0, 0.0);
    EXPECT_EQ(written(NO_FORMATTER, true), "true");
    EXPECT_EQ(written(NO_FORMATTER, -7), "-7");
    EXPECT_EQ(written(NO_FORMATTER, 4294967295u), "4294967295");
    EXPECT_EQ(written(NO_FORMATTER, -9223372036854775807LL), "-9223372036854775807");
    EXPECT_EQ(written(NO_FORMATTER, 18446744073709551615ULL), "18446744073709551615");
    EXPECT_EQ(written(NO_FORMATTER, std::int64_t{-1}), "-1");
    EXPECT_EQ(written(NO_FORMATTER, std::uint64_t{1}), "1");
    EXPECT_EQ(written(NO_FORMATTER, -1L), "-1");
    EXPECT_EQ(written(NO_FORMATTER, 1UL), "1");
    EXPECT_EQ(written(NO_FORMATTER, 2.5), "2.5");
    EXPECT_EQ(written(INTEGER, 2.5), "2");
    EXPECT_EQ(written(NO_FORMATTER, date), "2011-03-15T00:00:00");
    EXPECT_EQ(written(DATE, date), "2011-03-15");
    EXPECT_EQ(written(NO_FORMATTER, std::vector<unsigned char>{'A', 'B'}), "QUI=");
    EXPECT_EQ(written(HEX, std::vector<unsigned char>{'A', 'B'}), "4142");
    const tessera::Duration month(tessera::YearMonthDuration(0, 1), tessera::DayTimeDuration(0, 0, 0, 0.0));
    EXPECT_EQ(written(NO_FORMATTER, month), "P1M");
}

} // namespace
