#pragma once

#include "ocore/AnlXlate/AnlToStreamTranslator.h"
#include "ocore/AnlXlate/AnlTranslator.h"
#include "ocore/AnlXlate/XmlForms.h"

namespace zent {

/// Translates node lists to and from the documents of one XML form.
class AnlTranslatorForXml : public AnlTranslator, public AnlToStreamTranslator {
public:
    /// The form must outlive the translator.
    explicit AnlTranslatorForXml(const XmlForm& form)
        : m_form(form), m_origin(form.origin), m_isFormatted(form.isFormatted) {}

    void anlFromBuffer(const ByteBuffer& source, AttrNodeList* target) override;
    void anlToBuffer(const AttrNodeList& source, ByteBuffer* target) override;
    void anlFromFile(const CXString& fileName, AttrNodeList* target) override;
    void anlToFile(const AttrNodeList& source, const CXString& fileName) override;
    void translate(const AttrNodeList& source, Stream& target) override;

    /// Whether documents are laid out with line breaks and tabs; to begin with as the form says.
    void setFormatted(bool formatted) { m_isFormatted = formatted; }
    bool isFormatted() const { return m_isFormatted; }
    /// What documents in buffers come as; to begin with as the form says.
    void setOrigin(XmlOrigin origin) { m_origin = origin; }

private:
    std::optional<CXString> findDtdPath() const;
    void write(const AttrNodeList& source, class TarvoXmlDataStream& stream) const;
    void finishAfterInput(AttrNodeList& list) const;

    const XmlForm& m_form;
    XmlOrigin m_origin;
    bool m_isFormatted;
};

template <const XmlForm& form>
class TranslatorOf final : public AnlTranslatorForXml {
public:
    TranslatorOf() : AnlTranslatorForXml(form) {}
};

using OrdoTranslator = TranslatorOf<xmlForm::ordo>;
using SmallOrdoTranslator = TranslatorOf<xmlForm::smallOrdo>;
using OcapTranslator = TranslatorOf<xmlForm::ocap>;
using OmpTranslator = TranslatorOf<xmlForm::mediaPreference>;

} // namespace zent
