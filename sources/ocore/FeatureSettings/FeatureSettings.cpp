// Tickets come in shapes that printers don't take: page overrides without their ranges in front,
// and one image shift for both sides. The changes of shape here are made once, at the import, so
// that all later code sees one shape.

#include "ocore/FeatureSettings/FeatureSettings.h"

#include <utility>

#include "ocore/Attributes/IppList.h"
#include "ocore/Faults/Exceptions.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent {

std::unique_ptr<Settings> FeatureSettings::clone() const {
    return std::make_unique<FeatureSettings>(*this);
}

StockSize FeatureSettings::getStockSize() const {
    std::int32_t width = 0;
    std::int32_t height = 0;
    if (getLong(_FI(feature::xDimension), &width) && getLong(_FI(feature::yDimension), &height)) {
        return {width, height};
    }
    return {};
}

void FeatureSettings::setStockSize(const StockSize& size) {
    if (size.isUnspecified()) {
        setFeatureValue(_FI(feature::xDimension), FeatureValue());
        setFeatureValue(_FI(feature::yDimension), FeatureValue());
        return;
    }
    setLong(_FI(feature::xDimension), size.getShortEdge());
    setLong(_FI(feature::yDimension), size.getLongEdge());
}

FeatureSettings FeatureSettings::getNestedSettings(const _SI& setting, std::uint32_t instance) {
    AttrNodeList* const container = findContainer(setting);
    AttrNodeList* nested = nullptr;
    if (container != nullptr && container->OrdoAttrToList(&nested, setting.getAttrID(), instance)) {
        return FeatureSettings(nested);
    }
    return {};
}

void FeatureSettings::getNestedSettingsCopy(FeatureSettings* target, const _SI& setting,
                                            std::uint32_t instance) const {
    const AttrNodeList* const container = findContainer(setting);
    const AttrNodeList* nested = nullptr;
    if (container != nullptr && container->OrdoAttrToList(&nested, setting.getAttrID(), instance)) {
        *target = FeatureSettings(*nested);
    } else {
        *target = FeatureSettings();
    }
}

void FeatureSettings::setNestedSettings(const _SI& setting, const FeatureSettings& nested,
                                        std::uint32_t instance) {
    AttrNodeList copy(*nested.getAttrNodeList());
    findOrCreateNestedList(setting, setting.getSyntax(0), instance) = std::move(copy);
}

void FeatureSettings::visitNestedSettings(const _SI& setting,
                                          const std::function<void(FeatureSettings&)>& visit) {
    AttrNodeList* const members = findContainer(setting);
    std::uint32_t instance = 0;
    // The members are taken by position, since a look-up by instance would walk all that come
    // before it each time.
    for (std::uint32_t i = 0; members != nullptr && i < members->getNumberOfNodes(); ++i) {
        AttrNode& member = members->getNodeAt(i);
        if (member.getAttrID() != setting.getAttrID()) {
            continue;
        }
        AttrNodeList* list = nullptr;
        if (member.getAttrValue().isList()) {
            list = &static_cast<IppList&>(member.getAttrValue()).getAttrNodeList();
        } else {
            members->OrdoAttrToList(&list, setting.getAttrID(), instance); // raises the mismatch
        }
        ++instance;
        FeatureSettings view(list);
        visit(view);
    }
}

bool FeatureSettings::changeEachPageOverride(
    const std::function<bool(FeatureSettings&)>& operation) {
    bool changed = false;
    visitNestedSettings(_FI(feature::pageOverrides),
                        [&](FeatureSettings& member) { changed = operation(member) || changed; });
    return changed;
}

bool FeatureSettings::shapeAsPageOverride() {
    const _FI documents(feature::inputDocuments);
    const _FI pages(feature::pages);
    bool changed = false;
    if (!isSpecified(documents)) {
        setRange(documents, 1, 1);
        changed = true;
    }
    AttrNodeList& list = *getAttrNodeList();
    const AttrID documentsID = documents.getIDAsAttrID();
    const AttrID pagesID = pages.getIDAsAttrID();
    if (!list.isNodeAt(documentsID, 0) || !list.isNodeAt(pagesID, 1)) {
        list.moveNodeToFront(pagesID);
        list.moveNodeToFront(documentsID);
        changed = true;
    }
    return changed;
}

bool FeatureSettings::normalize() {
    const auto isChangedBy = [this](bool (FeatureSettings::*normalization)()) {
        try {
            return (this->*normalization)();
        } catch (const UnknownFeatureRequestException&) {
            return true;
        } catch (const AttributeTypeMismatchException&) {
            return true;
        }
    };
    const bool isShaped = isChangedBy(&FeatureSettings::normalizePageOverrides);
    return isChangedBy(&FeatureSettings::normalizeImageShift) || isShaped;
}

bool FeatureSettings::normalizePageOverrides() {
    return changeEachPageOverride(
        [](FeatureSettings& member) { return member.shapeAsPageOverride(); });
}

bool FeatureSettings::normalizeImageShift() {
    const _FI sides(feature::sides);
    const bool bothSides = getFeatureValue(sides).getValue() != value::oneSided;
    const bool changed = convertImageShift(bothSides);
    return changeEachPageOverride([&](FeatureSettings& member) {
               const std::int32_t ownSides = member.getFeatureValue(sides).getValue();
               const bool inheritsOneSide = ownSides == FeatureValue::unspecified && !bothSides;
               return member.convertImageShift(ownSides != value::oneSided && !inheritsOneSide);
           }) ||
           changed;
}

bool FeatureSettings::convertImageShift(bool bothSides) {
    const bool horizontal = moveShift(feature::xImageShift, feature::xSide1ImageShift,
                                      feature::xSide2ImageShift, bothSides);
    const bool vertical = moveShift(feature::yImageShift, feature::ySide1ImageShift,
                                    feature::ySide2ImageShift, bothSides);
    return horizontal || vertical;
}

bool FeatureSettings::moveShift(FeatureEnum general, FeatureEnum side1, FeatureEnum side2,
                                bool bothSides) {
    std::int32_t shift = 0;
    if (!getLong(_FI(general), &shift)) {
        return false;
    }
    setFeatureValue(_FI(general), FeatureValue());
    setLong(_FI(side1), shift);
    if (bothSides) {
        setLong(_FI(side2), shift);
    }
    return true;
}

} // namespace zent
