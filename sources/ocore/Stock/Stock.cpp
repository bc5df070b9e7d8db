#include "ocore/Stock/Stock.h"

#include <algorithm>
#include <atomic>
#include <utility>

#include "ocore/Attributes/IppList.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/Checking/SettingsValidator.h"
#include "ocore/Faults/Exceptions.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/Repair/ProblemReporter.h"
#include "ocore/Repair/SettingsProblemFixer.h"
#include "ocore/Resources/ResourceLibrary.h"
#include "platform/KeepForever.h"
#include "resources/ids.h"

namespace zent {

namespace {

const _FI& media = keepForever<_FI>(feature::media);
const _FI& mediaKey = keepForever<_FI>(feature::mediaKey);
const _FI& mediaCol = keepForever<_FI>(feature::mediaCol);

/// The features that make a description, in the order in which they are compared.
constexpr FeatureEnum descriptionFeatures[] = {
    feature::xDimension,      feature::yDimension,        feature::mediaType,
    feature::mediaColor,      feature::mediaDescription,  feature::mediaWeightMetric,
    feature::mediaHoleCount,  feature::mediaPrePrinted,   feature::mediaRecycled,
    feature::mediaOrderCount, feature::mediaFrontCoating, feature::mediaBackCoating,
    feature::mediaTooth,      feature::mediaGrain,
};

std::atomic<std::uint32_t> lastLogicalID{0};

/// Only a private node is the library's own: a document can hold an attribute of any name.
const AttrNode* findLogicalIDNode(const AttrNodeList& list) {
    static const CXString& name = keepForever<CXString>(u"private-stock-logical-id");
    for (std::uint32_t i = 0; i < list.getNumberOfNodes(); ++i) {
        const AttrNode& node = list.getNodeAt(i);
        if (node.isPrivate() && node.getName() == name) {
            return &node;
        }
    }
    return nullptr;
}

void setLogicalIDOfSettings(FeatureSettings& settings, std::uint32_t logicalID) {
    Stock::removeLogicalIDFromSettings(settings);
    if (logicalID != 0) {
        const IppInteger value(static_cast<std::int32_t>(logicalID));
        settings.getAttrNodeList()->addNode(
            AttrNode(AttrID(u"private-stock-logical-id"), value, true));
    }
}

/// What a ticket says of media: the name, the description unless that is empty, the logical id.
void copyMedia(const FeatureSettings& source, FeatureSettings& target) {
    if (const auto name = source.getNode(media)) {
        target.setNode(media, *name);
    }
    FeatureSettings description;
    source.getNestedSettingsCopy(&description, mediaCol);
    if (!description.isEmpty()) {
        target.setNestedSettings(mediaCol, description);
    }
    setLogicalIDOfSettings(target, Stock::getLogicalIDFromSettings(source));
}

void appendCounted(std::u16string& text, std::u16string_view part) {
    text += CXString::Format(u"%d:", static_cast<std::int32_t>(part.size()));
    text += part;
}

/// Appends everything by which two nodes of one name are compared.
void appendNode(std::u16string& text, const AttrNode& node) {
    const AttrValue& value = node.getAttrValue();
    text += node.isPrivate() ? u'p' : u' ';
    text += static_cast<char16_t>(u'0' + value.getAttrValueType());
    appendCounted(text, value.getIppSyntax());
    if (value.isList()) {
        const auto& list = static_cast<const IppList&>(value).getAttrNodeList();
        text += CXString::Format(u"%u:", list.getNumberOfNodes());
    } else {
        appendCounted(text, value.getIppValue());
    }
}

} // namespace

Stock::Stock(std::uint32_t logicalID, FeatureValue key, StockType kind, StockSource source,
             const FeatureSettings& settings)
    : m_logicalID(logicalID), m_key(key), m_kind(kind), m_source(source),
      m_settings(*settings.getAttrNodeList()) {
    setLogicalIDOfSettings(m_settings, logicalID);
}

std::unique_ptr<Stock> Stock::createFromSettings(const FeatureSettings& settings, StockType kind) {
    FeatureSettings found;
    copyMedia(settings, found);
    const bool isDescribed = found.isSpecified(mediaCol);
    if (!isDescribed && !found.isSpecified(media)) {
        return nullptr;
    }
    auto source = StockSource::name;
    FeatureValue key;
    if (isDescribed) {
        key = found.getFeatureValue(mediaKey);
        found.setFeatureValue(media, FeatureValue());
        found.setFeatureValue(mediaKey, FeatureValue());
        if (found.isSpecified(mediaCol)) {
            source = StockSource::description;
        } else {
            found.setFeatureValue(media, key);
        }
    } else {
        key = found.getFeatureValue(media);
    }
    return std::make_unique<Stock>(getLogicalIDFromSettings(settings), key, kind, source, found);
}

void Stock::setKey(FeatureValue key) {
    m_key = key;
    keepSettingsToSource();
}

void Stock::setKeyFromText(const CXString& text) {
    setKey(text.isEmpty() ? FeatureValue() : FeatureValue::fromText(mediaKey, text));
}

void Stock::setSource(StockSource source) {
    m_source = source;
    keepSettingsToSource();
}

void Stock::keepSettingsToSource() {
    if (m_source == StockSource::name) {
        m_settings.setFeatureValue(media, m_key);
        m_settings.setFeatureValue(mediaCol, FeatureValue());
    } else {
        m_settings.setFeatureValue(media, FeatureValue());
    }
}

CXString Stock::getDisplayString() const {
    switch (m_kind) {
    case StockType::transient:
        return m_key.getDisplayString();
    case StockType::user:
        return m_key.getDisplayString() + ResourceLibrary().getString(IDS_STOCK_OF_LIBRARY);
    case StockType::printer:
        return m_key.getDisplayString() + ResourceLibrary().getString(IDS_STOCK_OF_PRINTER);
    }
    Raise<UnknownCaseException>()("Stock::getDisplayString(): Unexpected stock type enumeration "
                                  "value of (%u)!\r\n",
                                  static_cast<std::uint32_t>(m_kind));
}

void Stock::assignNewLogicalID() { setLogicalID(++lastLogicalID); }

void Stock::setLogicalID(std::uint32_t logicalID) {
    m_logicalID = logicalID;
    setLogicalIDOfSettings(m_settings, logicalID);
}

std::uint32_t Stock::getLogicalIDFromSettings(const FeatureSettings& settings) {
    const AttrNode* const node = findLogicalIDNode(*settings.getAttrNodeList());
    return node == nullptr || !node->getAttrValue().isPrimitiveInteger()
               ? 0
               : static_cast<std::uint32_t>(
                     static_cast<const PrimitiveInteger&>(node->getAttrValue()).getValue());
}

void Stock::removeLogicalIDFromSettings(FeatureSettings& settings) {
    AttrNodeList& list = *settings.getAttrNodeList();
    list.removeNode(findLogicalIDNode(list));
}

void Stock::applyTo(FeatureSettings& target) const {
    target.setFeatureValue(media, FeatureValue());
    target.setFeatureValue(mediaCol, FeatureValue());
    removeLogicalIDFromSettings(target);
    copyMedia(m_settings, target);
}

AttrNodeList Stock::getAttrNodeList() const {
    FeatureSettings stored;
    if (m_source == StockSource::description) {
        stored = m_settings;
        stored.setFeatureValue(mediaKey, m_key);
    } else {
        stored.setFeatureValue(mediaKey, m_key.convertToFeature(mediaKey));
    }
    FeatureSettings description;
    stored.getNestedSettingsCopy(&description, mediaCol);
    return std::move(*description.getAttrNodeList());
}

StockMatch Stock::match(const Stock& other) const {
    if (m_logicalID != 0 && other.m_logicalID != 0) {
        return m_logicalID == other.m_logicalID ? StockMatch::best : StockMatch::none;
    }
    if (m_source != other.m_source) {
        return StockMatch::none;
    }
    if (m_source == StockSource::name) {
        return m_key == other.m_key ? StockMatch::nextBest : StockMatch::none;
    }
    const bool bothHaveKeys = hasKey() && other.hasKey();
    if ((bothHaveKeys && m_key != other.m_key) || !isSameDescription(other)) {
        return StockMatch::none;
    }
    return bothHaveKeys ? StockMatch::nextBest : StockMatch::basic;
}

StockDifference Stock::compare(const Stock& other) const {
    if (m_source != other.m_source) {
        return StockDifference::source;
    }
    if (!isSameDescription(other)) {
        return StockDifference::description;
    }
    if (m_key != other.m_key) {
        return StockDifference::key;
    }
    if (m_kind != other.m_kind) {
        return StockDifference::type;
    }
    return m_logicalID == other.m_logicalID ? StockDifference::none : StockDifference::logicalID;
}

bool Stock::isSameDescription(const Stock& other) const {
    return std::ranges::all_of(descriptionFeatures, [&](FeatureEnum feature) {
        return m_settings.isSameFeature(_FI(feature), other.m_settings);
    });
}

bool Stock::validate(const Capabilities& capabilities, const Settings& defaults,
                     const ProblemReporter& reporter) {
    SettingsProblemList problems;
    if (zent::validate(capabilities, m_settings, problems)) {
        return true;
    }
    if (reporter.report(problems, defaults) != problemPolicy::repair) {
        return false;
    }
    SettingsProblemFixer(defaults).fix(problems);
    m_kind = StockType::transient;
    return true;
}

std::u16string Stock::getDescriptionText() const {
    std::u16string text;
    for (const FeatureEnum feature : descriptionFeatures) {
        if (const auto node = m_settings.getNode(_FI(feature))) {
            appendNode(text, *node);
        } else {
            text += u'-';
        }
    }
    return text;
}

} // namespace zent
