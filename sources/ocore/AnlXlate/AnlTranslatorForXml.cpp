#include "ocore/AnlXlate/AnlTranslatorForXml.h"

#include "ocore/OrdoParse/TarvoXmlFile.h"

namespace zent {

std::optional<CXString> AnlTranslatorForXml::findDtdPath() const {
    return m_form.findDtdPath != nullptr ? m_form.findDtdPath() : std::nullopt;
}

void AnlTranslatorForXml::write(const AttrNodeList& source, TarvoXmlDataStream& stream) const {
    stream.setFormatted(m_isFormatted);
    if (m_form.encode == nullptr) {
        stream.write(&source);
        return;
    }
    AttrNodeList encoded = source;
    m_form.encode(encoded);
    stream.write(&encoded);
}

void AnlTranslatorForXml::finishAfterInput(AttrNodeList& list) const {
    if (m_form.decode != nullptr) {
        m_form.decode(list);
    }
}

void AnlTranslatorForXml::anlFromBuffer(const ByteBuffer& source, AttrNodeList* target) {
    TarvoXmlDataStream stream(m_form, findDtdPath());
    stream.setOrigin(m_origin);
    stream.setInputBuffer(source.data(), source.size());
    stream.read(target);
    finishAfterInput(*target);
}

void AnlTranslatorForXml::anlToBuffer(const AttrNodeList& source, ByteBuffer* target) {
    BufferStream stream(target);
    translate(source, stream);
}

void AnlTranslatorForXml::translate(const AttrNodeList& source, Stream& target) {
    TarvoXmlDataStream stream(m_form, findDtdPath());
    stream.setOrigin(m_origin);
    stream.setOutput(&target);
    write(source, stream);
}

void AnlTranslatorForXml::anlFromFile(const CXString& fileName, AttrNodeList* target) {
    TarvoXmlFile(m_form, fileName, findDtdPath()).read(target);
    finishAfterInput(*target);
}

void AnlTranslatorForXml::anlToFile(const AttrNodeList& source, const CXString& fileName) {
    TarvoXmlFile stream(m_form, fileName, findDtdPath());
    write(source, stream);
}

} // namespace zent
