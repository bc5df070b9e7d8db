#include "ocore/OrdoParse/CompiledDtd.h"

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/validators/DTD/DTDGrammar.hpp>

#include "ocore/OrdoParse/DOMTreeErrorReporter.h"
#include "ocore/OrdoParse/OwnDtd.h"
#include "platform/Files.h"
#include "platform/KeepForever.h"
#include "platform/Lock.h"

namespace zent {

namespace {

/// The one definition that is kept, with the stamp that its file had when it was read.
struct Slot {
    platform::Lock lock;
    CXString path;
    platform::FileStamp stamp;
    std::shared_ptr<const CompiledDtd> dtd;

    void clear() {
        path.clear();
        stamp = {};
        dtd.reset();
    }
};

Slot& slot() {
    static Slot& kept = keepForever<Slot>();
    return kept;
}

/// The library fills in parts of a declaration when a document first needs them, without a lock.
/// This makes it fill in all, so that threads can share the declarations.
void completeDeclarations(const xercesc::DTDGrammar& grammar) {
    auto declarations = grammar.getElemEnumerator();
    while (declarations.hasMoreElements()) {
        xercesc::DTDElementDecl& declaration = declarations.nextElement();
        declaration.getElementName()->getRawName();
        declaration.getAttDefList();
        declaration.getFormattedContentModel();
        const auto model = declaration.getModelType();
        if (model == xercesc::DTDElementDecl::Mixed_Simple ||
            model == xercesc::DTDElementDecl::Children) {
            declaration.getContentModel();
        }
    }
}

} // namespace

CompiledDtd::CompiledDtd(const CXString& path, std::unique_ptr<ByteBuffer> bytes)
    : m_path(path), m_bytes(std::move(bytes)),
      m_grammars(std::make_unique<xercesc::XMLGrammarPoolImpl>(&m_memory)) {}

CompiledDtd::~CompiledDtd() = default;

std::shared_ptr<const CompiledDtd> CompiledDtd::find(const CXString& path) {
    Slot& kept = slot();
    const platform::FileStamp stamp = platform::getFileStamp(path);
    const platform::LockHold hold(kept.lock);
    if (kept.stamp == stamp && kept.path == path) {
        return kept.dtd;
    }
    kept.clear();
    if (!stamp.exists) {
        return nullptr;
    }
    auto compiled = compile(path);
    if (platform::getFileStamp(path) != stamp) { // the file changed while it was read
        return nullptr;
    }
    kept.path = path;
    kept.stamp = stamp;
    kept.dtd = std::move(compiled);
    return kept.dtd;
}

void CompiledDtd::forget() {
    Slot& kept = slot();
    const platform::LockHold hold(kept.lock);
    kept.clear();
}

bool CompiledDtd::declaresElement(const CXString& name) const {
    const xercesc::XMLElementDecl* const declaration =
        m_grammar->getElemDecl(0, nullptr, name.c_str(), 0);
    return declaration != nullptr && declaration->isDeclared();
}

std::shared_ptr<const CompiledDtd> CompiledDtd::compile(const CXString& path) {
    auto bytes = readDtdFile(path);
    if (!bytes) {
        return nullptr;
    }
    const std::shared_ptr<CompiledDtd> dtd(new CompiledDtd(path, std::move(bytes)));
    DOMTreeErrorReporter reporter;
    OwnDtd nothingElse(CXString(), nullptr);
    ParserMemory memory;
    xercesc::XercesDOMParser parser(nullptr, &memory, dtd->m_grammars.get());
    parser.setErrorHandler(&reporter);
    parser.setXMLEntityResolver(&nothingElse);
    parser.setDisableDefaultEntityResolution(true);
    parser.setValidationScheme(xercesc::XercesDOMParser::Val_Always);
    parser.setDoNamespaces(false);
    const xercesc::MemBufInputSource source(
        static_cast<const XMLByte*>(static_cast<const void*>(dtd->m_bytes->data())),
        dtd->m_bytes->size(), path.c_str(), false, &memory);
    const xercesc::Grammar* grammar = nullptr;
    try {
        grammar = parser.loadGrammar(source, xercesc::Grammar::DTDGrammarType, true);
    } catch (const xercesc::XMLException&) {
        return nullptr;
    }
    // Faults in declarations are counted, but not all of them are reported outside of a document.
    if (grammar == nullptr || parser.getErrorCount() > 0 || !reporter.getMessages().isEmpty()) {
        return nullptr;
    }
    dtd->m_grammar = static_cast<const xercesc::DTDGrammar*>(grammar);
    completeDeclarations(*dtd->m_grammar);
    dtd->m_grammars->lockPool();
    return dtd;
}

} // namespace zent
