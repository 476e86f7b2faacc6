#include "quillet/persistence/clsBlockInfo.h"

namespace quillet {

void clsBlockInfo::setDefaults() {
    m_blockName.clear();
    m_blockSize = 0;
    m_blockPosition = 1;
}

void clsBlockInfo::setBlockName(const String& block_name_) { m_blockName = block_name_; }
String clsBlockInfo::getBlockName() const { return m_blockName; }
void clsBlockInfo::setBlockSize(const Long& block_size_) { m_blockSize = block_size_; }
Long clsBlockInfo::getBlockSize() const { return m_blockSize; }
void clsBlockInfo::setBlockPosition(const Long& block_pos_) { m_blockPosition = block_pos_; }
Long clsBlockInfo::getBlockPosition() const { return m_blockPosition; }

}  // namespace quillet
