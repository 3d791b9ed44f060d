// Values, texts and arrays as the rest of the engine relies on them.
#include "platform/vbscript/value/Value.h"

#include "platform/vbscript/value/Array.h"
#include "platform/vbscript/value/Memory.h"

#include <gtest/gtest.h>

namespace {

using namespace vbs;

TEST(Value, takesSixteenBytes) {
    EXPECT_EQ(sizeof(Value), 16U);
}

TEST(Value, numbersAllocateNothing) {
    const std::size_t before = memoryMeter().used;
    const Value values[] = {Value::ofWhole(1), Value::ofDouble(1.5), Value::ofDate(2.0), Value::ofBoolean(true),
                            Value::null()};
    EXPECT_EQ(memoryMeter().used, before);
    EXPECT_EQ(values[0].type, Type::Integer);
}

TEST(String, appendingToAnUnsharedTextIsInPlace) {
    String text(std::u16string_view(u"a"));
    for (int i = 0; i < 1000; ++i) {
        text.append(u"bc");
    }
    const char16_t* before = text.data();
    text.append(u"d");
    EXPECT_EQ(text.data(), before);
    EXPECT_EQ(text.size(), 2002U);
}

TEST(String, appendingToASharedTextLeavesTheOtherAlone) {
    String text(std::u16string_view(u"abc"));
    const String other = text;
    text.append(u"d");
    EXPECT_EQ(other.view(), u"abc");
    EXPECT_EQ(text.view(), u"abcd");
}

TEST(String, aTextMayBeAppendedToItself) {
    String text(std::u16string_view(u"ab"));
    for (int i = 0; i < 4; ++i) {
        text.append(text.view());
    }
    EXPECT_EQ(text.size(), 32U);
    EXPECT_EQ(text.view().substr(28), u"abab");
}

TEST(Array, aCopySharesUntilItIsWritten) {
    Value a = Value::ofArray(ArrayBlock::create(3));
    Value b = a;
    EXPECT_EQ(a.array(), b.array());
    writableArray(b).elements()[0] = Value::ofWhole(5);
    EXPECT_NE(a.array(), b.array());
    EXPECT_TRUE(a.array()->elements()[0].isEmpty());
}

TEST(Array, givesBackEveryByteThatItTook) {
    const std::size_t before = memoryMeter().used;
    {
        const std::int32_t sizes[] = {3, 4, 5};
        Value a = Value::ofArray(ArrayBlock::create(sizes));
        EXPECT_GE(memoryMeter().used, before + 60 * sizeof(Value));
        Value b = a;
        writableArray(b).elements()[59] = Value::ofArray(ArrayBlock::create(7));
        EXPECT_GE(memoryMeter().used, before + 127 * sizeof(Value));
        a = Value();
        const Value none = Value::ofArray(ArrayBlock::create(0));
    }
    EXPECT_EQ(memoryMeter().used, before);
}

TEST(Array, aMillionElementsTakeSixteenBytesEach) {
    const std::size_t before = memoryMeter().used;
    const Value a = Value::ofArray(ArrayBlock::create(1000000));
    EXPECT_LT(memoryMeter().used - before, 16000200U);
}

} // namespace
