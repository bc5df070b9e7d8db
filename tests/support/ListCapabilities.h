#pragma once

#include <string_view>

#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/Capabilities/Capabilities.h"
#include "support/ListText.h"

namespace zent::test {

/// A capability document made of a list's text.
class ListSource : public CapabilitySource {
public:
    explicit ListSource(std::string_view capabilities) : m_list(listOf(capabilities)) {}
    void getDocument(ByteBuffer& document) const override {
        OcapTranslator().anlToBuffer(m_list, &document);
    }

private:
    AttrNodeList m_list;
};

/// The capabilities of a printer with this document, and with what the tables add for it: a colour
/// printer unless another is given.
inline Capabilities capabilitiesOf(std::string_view list, std::uint32_t model = 43) {
    return {PrinterModel(model, pageLanguage::postScript), 1, ListSource(list)};
}

} // namespace zent::test
