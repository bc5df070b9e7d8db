// Each function that takes something also notes the node in which it was found. What no line speaks
// of follows from these notes, without a second list of what the stream can say.

#include "ocore/Ajt/AjtTicketReader.h"

#include "ocore/Faults/Exceptions.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent::ajt {

const AttrNodeList* TicketReader::findAccountedList(const _FI& feature) const {
    return m_spoken == nullptr
               ? nullptr
               : feature.getNestedAttrID().findList(std::as_const(*m_settings.getAttrNodeList()));
}

void TicketReader::take(FeatureEnum feature) const {
    const _FI setting(feature);
    const AttrNodeList* const list = findAccountedList(setting);
    const AttrNode* const node = list == nullptr ? nullptr : list->findNode(setting.getAttrID());
    if (node != nullptr) {
        m_spoken->insert(node);
    }
}

bool TicketReader::takeString(FeatureEnum feature, CXString* target) const {
    take(feature);
    return m_settings.getString(_FI(feature), target);
}

bool TicketReader::takeLong(FeatureEnum feature, std::int32_t* target) const {
    take(feature);
    return m_settings.getLong(_FI(feature), target);
}

bool TicketReader::takeRange(FeatureEnum feature, std::int32_t* lower, std::int32_t* upper) const {
    const bool isFound = m_settings.getRange(_FI(feature), lower, upper);
    if (isFound) {
        take(feature);
    }
    return isFound;
}

std::vector<std::int32_t> TicketReader::takeLongs(FeatureEnum feature) const {
    const _FI setting(feature);
    const AttrNodeList* const list = findAccountedList(setting);
    for (std::uint32_t i = 0; list != nullptr && i < list->getNumberOfNodes(); ++i) {
        if (list->isNodeAt(setting.getAttrID(), i)) {
            m_spoken->insert(&list->getNodeAt(i));
        }
    }
    return m_settings.getLongs(setting);
}

bool TicketReader::takeDimensions(std::int32_t* width, std::int32_t* height) const {
    if (!m_settings.getLong(_FI(feature::xDimension), width) ||
        !m_settings.getLong(_FI(feature::yDimension), height)) {
        return false;
    }
    take(feature::xDimension);
    take(feature::yDimension);
    return true;
}

std::string_view TicketReader::takeWord(FeatureEnum feature, std::span<const Word> words) const {
    const std::string_view word = findWord(words, getFeatureValue(feature));
    if (!word.empty()) {
        take(feature);
    }
    return word;
}

void TicketReader::takeAsUnderstood(FeatureEnum feature, std::int32_t lower,
                                    std::int32_t upper) const {
    if (m_spoken == nullptr) {
        return;
    }
    std::int32_t first = 0;
    std::int32_t last = 0;
    try {
        if (m_settings.getRange(_FI(feature), &first, &last) && first == lower && last == upper) {
            take(feature);
        }
    } catch (const AttributeTypeMismatchException&) {
        return; // no range, so the stream doesn't speak of it
    }
}

std::string_view TicketReader::takePlexWord() const {
    static constexpr Word words[] = {
        {value::oneSided, "simplex"},
        {value::twoSidedLongEdge, "duplex"},
        {value::twoSidedShortEdge, "duplex(tumble)"},
    };
    return takeWord(feature::sides, words);
}

std::string_view TicketReader::takeRotationWord() const {
    static constexpr Word words[] = {
        {value::rotate0, "0"},
        {value::rotate90, "90"},
        {value::rotate180, "180"},
        {value::rotate270, "270"},
    };
    return takeWord(feature::pageRotation, words);
}

TicketReader TicketReader::getNested(FeatureEnum feature) const {
    take(feature);
    return TicketReader(m_settings.getNestedSettings(_FI(feature)), m_spoken);
}

} // namespace zent::ajt
