#pragma once

#include <cstddef>

#include <xercesc/framework/MemoryManager.hpp>

namespace zent {

/// The memory of one run of the parser. What the parser doesn't give back goes with this object:
/// a parser that is stopped half-way loses track of some of it, and Debian's guard against
/// CVE-2018-1311 is that one declaration is never freed in each document type that is read.
class ParserMemory final : public xercesc::MemoryManager {
public:
    ParserMemory() = default;
    ~ParserMemory() override;
    ParserMemory(const ParserMemory&) = delete;
    ParserMemory& operator=(const ParserMemory&) = delete;

    void* allocate(XMLSize_t size) override;
    void deallocate(void* memory) override;
    /// For exceptions, which may outlive this object.
    xercesc::MemoryManager* getExceptionMemoryManager() override;

private:
    struct Block;
    Block* m_newest = nullptr;
};

} // namespace zent
