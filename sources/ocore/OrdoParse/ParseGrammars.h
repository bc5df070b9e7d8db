#pragma once

#include <xercesc/framework/XMLGrammarPoolImpl.hpp>

namespace zent {

/// What one parse sees of the grammars of a compiled definition, and the grammars that the parse
/// makes for itself. Those lie in its own memory: a parse that is stopped, by a lack of memory or
/// by the bounds on documents, doesn't give them back.
class ParseGrammars final : public xercesc::XMLGrammarPoolImpl {
public:
    ParseGrammars(xercesc::XMLGrammarPool& compiled, xercesc::MemoryManager& memory)
        : XMLGrammarPoolImpl(&memory), m_compiled(compiled) {}

    xercesc::Grammar* retrieveGrammar(xercesc::XMLGrammarDescription* description) override {
        return m_compiled.retrieveGrammar(description);
    }
    xercesc::XMLStringPool* getURIStringPool() override { return m_compiled.getURIStringPool(); }

private:
    xercesc::XMLGrammarPool& m_compiled;
};

} // namespace zent
