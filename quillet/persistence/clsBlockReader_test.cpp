#include "quillet/persistence/clsBlockReader.h"

#include <gtest/gtest.h>

#include "quillet/frame/NumberText.h"

namespace quillet {
namespace {

String blocksOf(const clsBlockReader& reader) {
    String s;
    for (Long i = 0; i < reader.getNumberOfBlocks(); ++i) {
        const auto info = reader.getBlockInformation(i);
        s += info->getBlockName() + u":" + numberText(info->getBlockSize()) + u"@" +
             numberText(info->getBlockPosition()) + u" ";
    }
    return s;
}

TEST(clsBlockReader, IndexesBlocksByHeaderAndSize) {
    auto reader = std::make_shared<clsBlockReader>();
    EXPECT_EQ(reader->getNumberOfBlocks(), 0);
    EXPECT_EQ(reader->getBlockInformation(0), nullptr);
    EXPECT_EQ(reader->getBuffer(), Variant(u""));

    const String two = u"<BLOCK ID=front SIZE=5>\r\nhello<BLOCK ID=back SIZE=2>\r\nhi";
    reader->setBuffer(Variant(two));
    ASSERT_EQ(reader->getNumberOfBlocks(), 2);
    const auto front = reader->getBlockInformation(0);
    EXPECT_EQ(front->getBlockName(), u"front");
    EXPECT_EQ(front->getBlockSize(), 5);
    EXPECT_EQ(front->getBlockPosition(), 26);
    EXPECT_EQ(two.substr(25, 5), u"hello");
    EXPECT_EQ(reader->getBlockInformation(1)->getBlockPosition(), 55);
    EXPECT_EQ(reader->getBlockInformation(0), front);  // the reader's own entry
    EXPECT_EQ(reader->getBlockInformation(2), nullptr);
    EXPECT_EQ(reader->getBlockInformation(-1), nullptr);

    // An empty buffer is kept, the block list too.
    reader->setBuffer(Variant(u""));
    EXPECT_EQ(reader->getBuffer(), Variant(u""));
    EXPECT_EQ(reader->getNumberOfBlocks(), 2);
    // Content is jumped over: a header inside a block's content is not seen.
    reader->setBuffer(Variant(u"<BLOCK ID=a SIZE=9>\r\n<BLOCK >x<BLOCK ID=b SIZE=0>\r\n"));
    EXPECT_EQ(blocksOf(*reader), u"a:9@22 b:0@52 ");
}

TEST(clsBlockReader, OddHeadersAndSizes) {
    struct Row {
        const char* name;
        const char16_t* buffer;
        const char16_t* expected;
    };
    const Row rows[] = {
        {"no header", u"just text", u""},
        {"lower case is no header", u"<block ID=x SIZE=1>\r\nx", u""},
        {"no closing mark", u"<BLOCK ID=x SIZE=1", u""},
        {"keys in the other order", u"<BLOCK SIZE=3 ID=x>\r\nabc", u":3@22 "},
        {"no size", u"<BLOCK ID=x >\r\n<BLOCK ID=y SIZE=1>\r\nz", u"x:0@16 y:1@37 "},
        {"size past the end", u"<BLOCK ID=x SIZE=99>\r\nab", u"x:99@23 "},
        {"size rounds half-to-even", u"<BLOCK ID=x SIZE=2.5>\r\nab", u"x:2@24 "},
        {"size beyond Long ends the scan", u"<BLOCK ID=x SIZE=1>\r\na<BLOCK ID=y SIZE=9E99>\r\n", u"x:1@22 y:0@1 "},
        {"a size back to its own header ends the scan", u"<BLOCK ID=x SIZE=-23>\r\n", u"x:-23@24 "},
        {"a size back to an earlier header ends the scan", u"<BLOCK ID=x SIZE=1>\r\na<BLOCK ID=y SIZE=-30>\r\n",
         u"x:1@22 y:-30@46 "},
        {"a size before the start ends the scan", u"<BLOCK ID=x SIZE=-99>\r\n", u"x:-99@24 "},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        clsBlockReader reader;
        reader.setBuffer(Variant(r.buffer));
        EXPECT_EQ(blocksOf(reader), r.expected);
    }
}

TEST(clsBlockReader, BuffersWithoutTextAndBlockInfoDefaults) {
    clsBlockReader reader;
    reader.setBuffer(Variant(u"<BLOCK ID=x SIZE=1>\r\na"));
    reader.setBuffer(Variant::null());  // kept, the list too
    EXPECT_EQ(reader.getNumberOfBlocks(), 1);
    reader.setBuffer(Variant(std::make_shared<int>(1)));  // cannot be scanned: the list is cleared
    EXPECT_EQ(reader.getNumberOfBlocks(), 0);

    clsBlockInfo info;
    EXPECT_EQ(info.getBlockName(), u"");
    EXPECT_EQ(info.getBlockSize(), 0);
    EXPECT_EQ(info.getBlockPosition(), 1);
}

}  // namespace
}  // namespace quillet
