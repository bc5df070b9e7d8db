#include "Outline.h"

#include <map>
#include <optional>

#include "Feature.h"
#include "Text.h"
#include "Value.h"
#include "ocore/Attributes/AttrNames.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/FeatureSettings/StockSize.h"

namespace jobticket {

namespace {

using zent::AttrNode;
using zent::AttrNodeList;
using zent::AttrValue;
using zent::IppList;

/// A value for programs and for people.
struct Shown {
    std::string value;
    std::string text;
};

const AttrNodeList& membersOf(const AttrValue& value) {
    return static_cast<const IppList&>(value).getAttrNodeList();
}

std::optional<Feature> findFeature(const std::string& name) {
    return Feature::exists(name) ? std::optional(Feature::named(name)) : std::nullopt;
}

Shown bothWays(const std::string& text) { return {text, text}; }

/// A number that is a member of a compound value; nothing if it is missing or no number.
std::optional<std::int32_t> numberIn(const AttrNodeList& list, const zent::AttrID& id) {
    const AttrNode* node = list.findNode(id);
    std::int32_t number = 0;
    const bool isNumber = node != nullptr && node->getAttrValue().isPrimitiveInteger() &&
                          list.OrdoAttrToLong(&number, id);
    return isNumber ? std::optional(number) : std::nullopt;
}

std::string textOf(std::optional<std::int32_t> number) {
    return number ? std::to_string(*number) : "?";
}

Shown showRange(const AttrNodeList& bounds) {
    const auto lower = numberIn(bounds, zent::attrNames::lowerBound());
    const auto upper = numberIn(bounds, zent::attrNames::upperBound());
    return bothWays(lower && lower == upper ? textOf(lower) : textOf(lower) + "-" + textOf(upper));
}

Shown showResolution(const AttrNodeList& numbers) {
    const auto units = numberIn(numbers, zent::attrNames::units());
    const std::string across = textOf(numberIn(numbers, zent::attrNames::crossFeed()));
    const std::string along = textOf(numberIn(numbers, zent::attrNames::feedDirection()));
    std::string unit;
    switch (units.value_or(0)) {
    case dotsPerInch:
        unit = "dpi";
        break;
    case dotsPerCentimetre:
        unit = "dpcm";
        break;
    default:
        unit = "unit " + textOf(units);
        break;
    }
    return {across + "x" + along + unit, across + " x " + along + " " + unit};
}

/// The two dimensions of a medium on one line; nothing if there is more to it, or less.
std::optional<Shown> showSize(const AttrNodeList& dimensions) {
    const auto width = numberIn(dimensions, zent::AttrID(u"x-dimension"));
    const auto height = numberIn(dimensions, zent::AttrID(u"y-dimension"));
    if (dimensions.getNumberOfNodes() != 2 || !width || !height) {
        return std::nullopt;
    }
    const zent::StockSize size(*width, *height);
    std::string text = lengthInMillimetres(*width) + " x " + lengthInMillimetres(*height);
    if (size.getSize() != zent::StockSize::codeOther) {
        text = toPrintable(size.getDisplayName());
    }
    return Shown{textOf(width) + "x" + textOf(height), text};
}

Shown showPrimitive(const AttrValue& value, const std::optional<Feature>& feature) {
    const zent::CXString text = value.getIppValue();
    Shown shown = bothWays(toPrintable(text));
    if (value.getAttrValueType() == zent::AVTE_NULL) {
        return bothWays("(of the syntax " + toPrintable(value.getIppSyntax()) + ")");
    }
    if (feature && feature->getKind() != ValueKind::text &&
        zent::FeatureValue::isKnownValue(feature->getNumber(), text)) {
        const zent::FeatureValue known(feature->getNumber(), text);
        shown.text = toPrintable(known.getDisplayString());
    } else if (feature && value.isPrimitiveInteger()) {
        shown.text = withUnit(static_cast<const zent::PrimitiveInteger&>(value).getValue(),
                              feature->getUnit());
    }
    return shown;
}

/// What fits on one line; nothing for a collection.
std::optional<Shown> showOnOneLine(const AttrValue& value, const std::optional<Feature>& feature) {
    if (value.isRangeOfInteger()) {
        return showRange(membersOf(value));
    }
    if (value.isResolution()) {
        return showResolution(membersOf(value));
    }
    if (value.isCollection() && feature && feature->getKind() == ValueKind::size) {
        return showSize(membersOf(value));
    }
    return value.isList() ? std::nullopt : std::optional(showPrimitive(value, feature));
}

/// A set on one line; nothing if a member doesn't fit there.
std::optional<Shown> showSet(const AttrNodeList& members, const std::optional<Feature>& feature) {
    Shown all;
    for (std::uint32_t index = 0; index < members.getNumberOfNodes(); ++index) {
        const auto shown = showOnOneLine(members.getNodeAt(index).getAttrValue(), feature);
        if (!shown) {
            return std::nullopt;
        }
        all.value += (index == 0 ? "" : ",") + shown->value;
        all.text += (index == 0 ? "" : ", ") + shown->text;
    }
    return all;
}

class Outliner {
public:
    std::vector<OutlineLine> m_lines;

    void addList(const AttrNodeList& list, const std::string& prefix, unsigned depth) {
        std::map<std::string, unsigned> seen;
        for (std::uint32_t index = 0; index < list.getNumberOfNodes(); ++index) {
            const AttrNode& node = list.getNodeAt(index);
            if (!node.isPrivate()) {
                const std::string name = toPrintable(node.getName());
                const unsigned repeats = seen[name]++;
                addNode(node.getAttrValue(), name,
                        prefix + name + (repeats > 0 ? "#" + std::to_string(repeats + 1) : ""),
                        prefix, depth);
            }
        }
    }

private:
    void addNode(const AttrValue& value, const std::string& name, const std::string& path,
                 const std::string& prefix, unsigned depth) {
        const std::optional<Feature> feature = findFeature(name);
        const std::string label = feature ? feature->getDisplayName() : name;
        const auto shown =
            value.is1setOf() ? showSet(membersOf(value), feature) : showOnOneLine(value, feature);
        if (shown) {
            m_lines.push_back({depth, false, path, shown->value, label, shown->text});
        } else if (value.is1setOf()) {
            addMembers(membersOf(value), feature, label, path, prefix, depth);
        } else {
            addCollection(value, feature, label, path, prefix, depth);
        }
    }

    void addMembers(const AttrNodeList& members, const std::optional<Feature>& feature,
                    const std::string& label, const std::string& path, const std::string& prefix,
                    unsigned depth) {
        for (std::uint32_t index = 0; index < members.getNumberOfNodes(); ++index) {
            const AttrValue& member = members.getNodeAt(index).getAttrValue();
            const std::string memberPath = path + "[" + std::to_string(index) + "]";
            const std::string memberLabel = label + " " + std::to_string(index + 1);
            // Features are found in the first member of a set by themselves.
            addCollection(member, index == 0 ? feature : std::nullopt, memberLabel, memberPath,
                          prefix, depth);
        }
    }

    void addCollection(const AttrValue& value, const std::optional<Feature>& feature,
                       const std::string& label, const std::string& path, const std::string& prefix,
                       unsigned depth) {
        if (!value.isList()) { // a set may hold this among collections
            const Shown shown = showPrimitive(value, feature);
            m_lines.push_back({depth, false, path, shown.value, label, shown.text});
            return;
        }
        m_lines.push_back({depth, true, path, "", label, ""});
        const bool isTransparent =
            feature && feature->getKind() == ValueKind::collection && !feature->isPageLevel();
        addList(membersOf(value), isTransparent ? prefix : path + ".", depth + 1);
    }
};

} // namespace

std::vector<OutlineLine> makeOutline(const AttrNodeList& ticket) {
    Outliner outliner;
    outliner.addList(ticket, "", 0);
    return std::move(outliner.m_lines);
}

} // namespace jobticket
