// All access to a setting goes the same way: its NestedAttrID finds the list that holds it, and its
// syntaxes say what is stored there. No value is kept outside the list.

#include "ocore/FeatureSettings/Settings.h"

#include <utility>

#include "ocore/Attributes/AttrNames.h"
#include "ocore/Attributes/AttrValueFactory.h"
#include "ocore/Attributes/IppBoolean.h"
#include "ocore/Attributes/PrimitiveInteger.h"

namespace zent {

namespace {

void setInteger(AttrNodeList& list, const AttrID& id, std::int32_t value) {
    list.setNode(id, std::make_unique<IppInteger>(value));
}

} // namespace

Settings::Settings() : m_ownedList(std::make_unique<AttrNodeList>()), m_list(m_ownedList.get()) {}

Settings::Settings(const AttrNodeList& list)
    : m_ownedList(std::make_unique<AttrNodeList>(list)), m_list(m_ownedList.get()) {}

Settings::Settings(AttrNodeList&& list)
    : m_ownedList(std::make_unique<AttrNodeList>(std::move(list))), m_list(m_ownedList.get()) {}

Settings::Settings(const Settings& other) : m_list(other.m_list) {
    if (other.m_ownedList != nullptr) {
        m_ownedList = std::make_unique<AttrNodeList>(*other.m_ownedList);
        m_list = m_ownedList.get();
    }
}

Settings& Settings::operator=(const Settings& other) {
    if (this != &other) {
        *this = Settings(other);
    }
    return *this;
}

// What is moved from views the list that it owned, which now lives in the target.
Settings::Settings(Settings&& other) noexcept
    : m_ownedList(std::move(other.m_ownedList)), m_list(other.m_list) {}

Settings& Settings::operator=(Settings&& other) noexcept {
    if (this != &other) {
        m_ownedList = std::move(other.m_ownedList);
        m_list = other.m_list;
    }
    return *this;
}

std::unique_ptr<Settings> Settings::clone() const { return std::make_unique<Settings>(*this); }

void Settings::dump() const {
    for (std::uint32_t i = 0; i < m_list->getNumberOfNodes(); ++i) {
        std::as_const(*m_list).getNodeAt(i).getAttrValue().dump();
    }
}

void Settings::setAttrNodeList(const AttrNodeList& list) {
    if (&list != m_list) {
        *this = Settings(list);
    }
}

const AttrNodeList* Settings::findContainer(const _SI& setting) const {
    return setting.getNestedAttrID().findList(std::as_const(*m_list));
}

AttrNodeList* Settings::findContainer(const _SI& setting) {
    return setting.getNestedAttrID().findList(*m_list);
}

AttrNodeList& Settings::findOrCreateContainer(const _SI& setting) {
    return *setting.getNestedAttrID().findOrCreateList(*m_list);
}

AttrNodeList& Settings::findOrCreateNestedList(const _SI& setting, const CXString& syntax,
                                               std::uint32_t instance) {
    AttrNodeList& container = findOrCreateContainer(setting);
    AttrNodeList* nested = nullptr;
    if (!container.OrdoAttrToList(&nested, setting.getAttrID(), instance)) {
        nested = container.addList(setting.getAttrID(), syntax);
    }
    return *nested;
}

const AttrNode* Settings::findLeaf(const _SI& setting, std::uint32_t instance) const {
    const AttrNodeList* const container = findContainer(setting);
    return container == nullptr ? nullptr : container->findNode(setting.getAttrID(), instance);
}

bool Settings::isSpecified(const _SI& setting) const { return findLeaf(setting, 0) != nullptr; }

std::uint32_t Settings::getInstanceCount(const _SI& setting) const {
    const AttrNodeList* const container = findContainer(setting);
    return container == nullptr ? 0 : container->getNumberOfNodes();
}

std::uint32_t Settings::getNumberOfValues(const _SI& setting) const {
    const AttrNodeList* const container = findContainer(setting);
    if (container == nullptr) {
        return 0;
    }
    const std::uint32_t values = container->countNodes(setting.getAttrID());
    return values != 0 && setting.isInSetOf() ? container->getNumberOfNodes() : values;
}

bool Settings::getString(const _SI& setting, CXString* target, std::uint32_t instance) const {
    const AttrNodeList* const container = findContainer(setting);
    return container != nullptr &&
           container->OrdoAttrToString(target, setting.getAttrID(), instance);
}

bool Settings::getLong(const _SI& setting, std::int32_t* target, std::uint32_t instance) const {
    const AttrNodeList* const container = findContainer(setting);
    return container != nullptr && container->OrdoAttrToLong(target, setting.getAttrID(), instance);
}

std::vector<std::int32_t> Settings::getLongs(const _SI& setting) const {
    const AttrNodeList* const container = findContainer(setting);
    const std::uint32_t count = container == nullptr ? 0 : container->getNumberOfNodes();
    std::vector<std::int32_t> numbers;
    for (std::uint32_t i = 0; i < count; ++i) {
        const AttrNode& node = container->getNodeAt(i);
        if (node.getAttrID() != setting.getAttrID()) {
            continue;
        }
        std::int32_t number = 0;
        if (node.getAttrValue().isPrimitiveInteger()) {
            number = static_cast<const PrimitiveInteger&>(node.getAttrValue()).getValue();
        } else {
            // Raises, since the node is no number.
            getLong(setting, &number, static_cast<std::uint32_t>(numbers.size()));
        }
        numbers.push_back(number);
    }
    return numbers;
}

bool Settings::getBool(const _SI& setting, bool* target, std::uint32_t instance) const {
    const AttrNodeList* const container = findContainer(setting);
    return container != nullptr && container->OrdoAttrToBool(target, setting.getAttrID(), instance);
}

bool Settings::getRange(const _SI& setting, std::int32_t* lower, std::int32_t* upper,
                        std::uint32_t instance) const {
    const AttrNodeList* const container = findContainer(setting);
    return container != nullptr &&
           container->OrdoAttrToRange(lower, upper, setting.getAttrID(), instance);
}

bool Settings::getResolution(const _SI& setting, Resolution* target, std::uint32_t instance) const {
    const AttrNode* const leaf = findLeaf(setting, instance);
    std::int32_t crossFeed = 0;
    std::int32_t feedDirection = 0;
    std::int32_t units = 0;
    const bool isFound = leaf != nullptr &&
                         leaf->getAttrValue().getResolutionValues(crossFeed, feedDirection, units);
    *target = isFound ? Resolution(crossFeed, feedDirection, units) : Resolution();
    return isFound;
}

FeatureValue Settings::getFeatureValue(const _SI& setting, std::uint32_t instance) const {
    const AttrNode* const leaf = findLeaf(setting, instance);
    return leaf == nullptr
               ? FeatureValue()
               : FeatureValue::fromAttrValue(_FI(setting.getFeature()), leaf->getAttrValue());
}

void Settings::setFeatureValue(const _SI& setting, FeatureValue value, std::uint32_t instance) {
    if (value.getValue() == FeatureValue::unspecified) {
        removeInstance(setting, instance);
        setting.getNestedAttrID().removeEmptyParents(*m_list);
    } else {
        setAttribute(setting, value.getText(), value.getSyntax(), instance);
    }
}

void Settings::removeInstance(const _SI& setting, std::uint32_t instance) {
    if (AttrNodeList* const container = findContainer(setting)) {
        container->removeNode(setting.getAttrID(), instance);
    }
}

void Settings::setString(const _SI& setting, const CXString& text, std::uint32_t instance) {
    setAttribute(setting, text, setting.getSyntax(0), instance);
}

void Settings::setLong(const _SI& setting, std::int32_t value, std::uint32_t instance) {
    setAttribute(setting, IppInteger(value).getIppValue(), setting.getSyntax(0), instance);
}

void Settings::setBool(const _SI& setting, bool value, std::uint32_t instance) {
    findOrCreateContainer(setting).setNode(setting.getAttrID(), std::make_unique<IppBoolean>(value),
                                           instance);
}

void Settings::setRange(const _SI& setting, std::int32_t lower, std::int32_t upper,
                        std::uint32_t instance) {
    AttrNodeList& range = findOrCreateNestedList(setting, syntax::rangeOfInteger, instance);
    setInteger(range, attrNames::lowerBound(), lower);
    setInteger(range, attrNames::upperBound(), upper);
}

void Settings::setResolution(const _SI& setting, const Resolution& resolution,
                             std::uint32_t instance) {
    if (resolution.isUnspecified()) {
        setFeatureValue(setting, FeatureValue(), instance);
        return;
    }
    AttrNodeList& list = findOrCreateNestedList(setting, syntax::resolution, instance);
    setInteger(list, attrNames::crossFeed(), resolution.getCrossFeed());
    setInteger(list, attrNames::feedDirection(), resolution.getFeedDirection());
    setInteger(list, attrNames::units(), resolution.getUnits());
}

void Settings::setAttribute(const _SI& setting, const CXString& text, const CXString& syntax,
                            std::uint32_t instance) {
    auto value = AttrValueFactory::createAttrValue(syntax, text);
    findOrCreateContainer(setting).setNode(setting.getAttrID(), std::move(value), instance);
}

std::unique_ptr<AttrNode> Settings::getNode(const _SI& setting, std::uint32_t /*instance*/) const {
    const AttrNode* const leaf = findLeaf(setting, 0);
    return leaf == nullptr ? nullptr : std::make_unique<AttrNode>(*leaf);
}

void Settings::setNode(const _SI& setting, const AttrNode& node, std::uint32_t /*instance*/) {
    auto value = node.getAttrValue().clone(); // copied first, since the node may lie in this list
    findOrCreateContainer(setting).setNode(setting.getAttrID(), std::move(value), 0);
}

void Settings::copyFeature(const _SI& setting, const Settings& other, bool removeParents) {
    if (const auto node = other.getNode(setting)) {
        setNode(setting, *node);
        return;
    }
    removeInstance(setting, 0);
    if (removeParents) {
        setting.getNestedAttrID().removeEmptyParents(*m_list);
    }
}

bool Settings::isSameFeature(const _SI& setting, const Settings& other,
                             std::uint32_t instance) const {
    const AttrNode* const mine = findLeaf(setting, instance);
    const AttrNode* const theirs = other.findLeaf(setting, instance);
    if (mine == nullptr || theirs == nullptr) {
        return mine == theirs;
    }
    return *mine == *theirs;
}

} // namespace zent
