// quillet/persistence/clsBlockReader.h - indexes the named blocks of a block
// container: a text in which each block opens with a header such as
// "<BLOCK ID=front SIZE=5>", then CR LF, then exactly SIZE characters of
// content. The reader only finds the blocks; a host cuts them out itself.
// A creatable class.
//
//   auto reader = std::make_shared<clsBlockReader>();
//   reader->setBuffer(Variant(u"<BLOCK ID=front SIZE=5>\r\nhello<BLOCK ID=back SIZE=2>\r\nhi"));
//   reader->getNumberOfBlocks();                       // 2
//   reader->getBlockInformation(1)->getBlockName();     // u"back"
//   reader->getBlockInformation(0)->getBlockPosition(); // 26: "hello" starts there
//   reader->getBlockInformation(2);                     // Nothing: past the end
//
// Nothing checks that a block's content really has its stated size. No
// member lets a failure reach the caller.
#pragma once

#include <memory>

#include "quillet/frame/Array.h"
#include "quillet/frame/Variant.h"
#include "quillet/frame/types.h"
#include "quillet/persistence/clsBlockInfo.h"

namespace quillet {

class clsBlockReader {
public:
    clsBlockReader() { setDefaults(); }

    // setBuffer - keeps a copy and, when it is not empty, indexes it anew.
    // An empty buffer is kept but the earlier block list stays.
    void setBuffer(const Variant& buffer);
    // getBuffer - a copy of the buffer kept.
    [[nodiscard]] Variant getBuffer() const;
    // getNumberOfBlocks - the blocks found; 0 for none.
    [[nodiscard]] Long getNumberOfBlocks() const;
    // getBlockInformation - the entry with the 0-based Index, the reader's own
    // object rather than a copy; Nothing outside the list.
    [[nodiscard]] std::shared_ptr<clsBlockInfo> getBlockInformation(const Long& Index) const;

    // Implementation details follow.
private:
    void setDefaults();
    void scanBuffer();

    Variant m_buffer;
    Array<std::shared_ptr<clsBlockInfo>> m_blocks;  // from 0; one Nothing element when empty
};

}  // namespace quillet
