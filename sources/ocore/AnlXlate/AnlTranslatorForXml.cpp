#include "ocore/AnlXlate/AnlTranslatorForXml.h"

#include "ocore/OrdoParse/TarvoXmlDataStream.h"
#include "ocore/OrdoParse/TarvoXmlFile.h"

namespace zent {

bool AnlTranslatorForXml::prepareForOutput(const AttrNodeList& /*source*/,
                                           AttrNodeList* /*target*/) {
    return false;
}

void AnlTranslatorForXml::finishAfterInput(AttrNodeList* /*list*/) {}

void AnlTranslatorForXml::anlFromBuffer(const ByteBuffer& source, AttrNodeList* target) {
    const auto stream = createDataStream();
    stream->setInputBuffer(source.data(), source.size());
    stream->read(target);
    finishAfterInput(target);
}

void AnlTranslatorForXml::anlToBuffer(const AttrNodeList& source, ByteBuffer* target) {
    BufferStream stream(target);
    translate(source, stream);
}

void AnlTranslatorForXml::translate(const AttrNodeList& source, Stream& target) {
    AttrNodeList prepared;
    const bool isPrepared = prepareForOutput(source, &prepared);
    const auto stream = createDataStream();
    stream->setFormatted(m_formatted);
    stream->setOutput(&target);
    stream->write(isPrepared ? &prepared : &source);
}

void AnlTranslatorForXml::anlFromFile(const CXString& fileName, AttrNodeList* target) {
    createFileStream(fileName)->read(target);
    finishAfterInput(target);
}

void AnlTranslatorForXml::anlToFile(const AttrNodeList& source, const CXString& fileName) {
    AttrNodeList prepared;
    const bool isPrepared = prepareForOutput(source, &prepared);
    const auto stream = createFileStream(fileName);
    stream->setFormatted(m_formatted);
    stream->write(isPrepared ? &prepared : &source);
}

} // namespace zent
