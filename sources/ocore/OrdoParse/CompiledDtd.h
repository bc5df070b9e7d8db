#pragma once

#include <memory>

#include <xercesc/framework/XMLGrammarPoolImpl.hpp>

#include "ocore/OrdoParse/KeptSkeletons.h"
#include "ocore/OrdoParse/ParserMemory.h"
#include "ocore/Resources/ByteBuffer.h"
#include "ocore/Text/CXString.h"

XERCES_CPP_NAMESPACE_BEGIN
class DTDGrammar;
XERCES_CPP_NAMESPACE_END

namespace zent {

/// A document type definition that was read and compiled, to be used by many parses, on any number
/// of threads at once. Reading it anew costs sixteen times what parsing a short ticket does.
class CompiledDtd {
public:
    /// The definition as the file is now. One is kept for the process: as long as the file's stamp
    /// is the same, it is given out again. Null if there is no such file, or if it gives the parser
    /// anything to report or needs other files: then the parser tells what is wrong, each time.
    static std::shared_ptr<const CompiledDtd> find(const CXString& path);
    /// Drops the definition that is kept.
    static void forget();

    ~CompiledDtd();
    CompiledDtd(const CompiledDtd&) = delete;
    CompiledDtd& operator=(const CompiledDtd&) = delete;

    const CXString& getPath() const { return m_path; }
    const ByteBuffer& getBytes() const { return *m_bytes; }
    /// The compiled grammars. The pool is locked, and holds all that a parser would otherwise add
    /// to it while it reads a document.
    xercesc::XMLGrammarPool& getGrammars() const { return *m_grammars; }

    bool declaresElement(const CXString& name) const;

    /// Skeletons that have passed validation. They stay valid as long as the definition does.
    KeptSkeletons& getSkeletons() const { return m_skeletons; }

private:
    CompiledDtd(const CXString& path, std::unique_ptr<ByteBuffer> bytes);
    static std::shared_ptr<const CompiledDtd> compile(const CXString& path);

    CXString m_path;
    std::unique_ptr<ByteBuffer> m_bytes;
    ParserMemory m_memory; // of the grammars, with what a compilation without memory loses track of
    std::unique_ptr<xercesc::XMLGrammarPoolImpl> m_grammars;
    const xercesc::DTDGrammar* m_grammar = nullptr; // the one among them
    mutable KeptSkeletons m_skeletons;
};

} // namespace zent
