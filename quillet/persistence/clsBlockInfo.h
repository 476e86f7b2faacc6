// quillet/persistence/clsBlockInfo.h - where one named block of a block
// container lies: its name, its size in characters and the 1-based position
// of its first content character. A creatable plain record, filled by
// clsBlockReader.
//
//   auto info = std::make_shared<clsBlockInfo>();
//   info->getBlockPosition();             // 1
//   info->setBlockName(u"front");
//   info->getBlockName();                 // u"front"
//
// No member can fail.
#pragma once

#include "quillet/frame/types.h"

namespace quillet {

class clsBlockInfo {
public:
    clsBlockInfo() { setDefaults(); }

    void setBlockName(const String& block_name_);
    [[nodiscard]] String getBlockName() const;
    void setBlockSize(const Long& block_size_);
    [[nodiscard]] Long getBlockSize() const;
    void setBlockPosition(const Long& block_pos_);
    [[nodiscard]] Long getBlockPosition() const;

    // Implementation details follow.
private:
    void setDefaults();

    String m_blockName;
    Long m_blockSize = 0;
    Long m_blockPosition = 1;
};

}  // namespace quillet
