#pragma once

#include <memory>

#include "ocore/OrdoParse/TarvoXmlDataStream.h"
#include "platform/Files.h"

namespace zent {

/// One XML form as a node list, from and to a file.
class TarvoXmlFile final : public TarvoXmlDataStream, private Stream {
public:
    explicit TarvoXmlFile(const XmlForm& form, std::optional<CXString> fileName = std::nullopt,
                          std::optional<CXString> dtdName = std::nullopt)
        : TarvoXmlDataStream(form, std::move(dtdName)), m_fileName(std::move(fileName)) {}

    void read(AttrNodeList* list) override;
    /// A writing that fails leaves no file, also where there was one before.
    void write(const AttrNodeList* list) override;
    CXString getStreamName() const override;

private:
    bool write(std::string_view bytes) override;

    std::optional<CXString> m_fileName;
    std::unique_ptr<platform::OpenFile> m_file; // not null while a document is written
};

} // namespace zent
