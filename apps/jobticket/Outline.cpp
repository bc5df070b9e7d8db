// An outline shows a ticket as "jobticket set" would take it. So it leaves out collections that the
// features in them don't need to be found.

#include "Outline.h"

#include <algorithm>
#include <map>

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

const AttrNodeList& membersOf(const AttrValue& value) {
    return static_cast<const zent::IppList&>(value).getAttrNodeList();
}

ShownValue bothWays(const std::string& text) { return {text, text}; }

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

ShownValue showRange(const AttrNodeList& bounds) {
    const auto lower = numberIn(bounds, zent::attrNames::lowerBound());
    const auto upper = numberIn(bounds, zent::attrNames::upperBound());
    return bothWays(lower && lower == upper ? textOf(lower) : textOf(lower) + "-" + textOf(upper));
}

ShownValue showResolution(const AttrNodeList& numbers) {
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
std::optional<ShownValue> showSize(const AttrNodeList& dimensions) {
    const auto width = numberIn(dimensions, zent::AttrID(u"x-dimension"));
    const auto height = numberIn(dimensions, zent::AttrID(u"y-dimension"));
    if (dimensions.getNumberOfNodes() != 2 || !width || !height) {
        return std::nullopt;
    }
    const zent::StockSize size(*width, *height);
    std::string text = lengthInMillimetres(*width) + " x " + lengthInMillimetres(*height);
    if (size.getSize() != zent::StockSize::codeOther) {
        text = toUtf8(size.getDisplayName());
    }
    return ShownValue{textOf(width) + "x" + textOf(height), text};
}

/// Whether another value of the feature is shown by the same text.
bool hasTwin(const Feature& feature, const zent::FeatureValue& value) {
    const std::vector<zent::FeatureValue> values = feature.getValues();
    return std::ranges::any_of(values, [&](const zent::FeatureValue& other) {
        return other != value && other.getDisplayString() == value.getDisplayString();
    });
}

ShownValue showPrimitive(const AttrValue& value, const std::optional<Feature>& feature) {
    const zent::CXString text = value.getIppValue();
    ShownValue shown = bothWays(toUtf8(text));
    if (value.getAttrValueType() == zent::AVTE_NULL) {
        return bothWays("(of the syntax " + toUtf8(value.getIppSyntax()) + ")");
    }
    const auto known = feature && feature->getKind() != ValueKind::text
                           ? zent::FeatureValue::find(feature->getNumber(), text)
                           : std::nullopt;
    if (known) {
        shown.text = toUtf8(known->getDisplayString());
        if (hasTwin(*feature, *known)) {
            shown.text += " (" + shown.value + ")";
        }
    } else if (feature && value.isPrimitiveInteger()) {
        shown.text = withUnit(static_cast<const zent::PrimitiveInteger&>(value).getValue(),
                              feature->getUnit());
    }
    return shown;
}

/// One value; nothing for a collection.
std::optional<ShownValue> showOne(const AttrValue& value, const std::optional<Feature>& feature) {
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

std::string join(const std::vector<ShownValue>& values, std::string ShownValue::*part,
                 const char* separator) {
    std::string text;
    for (const ShownValue& value : values) {
        text += (&value == values.data() ? "" : separator) + value.*part;
    }
    return text;
}

} // namespace

std::optional<std::vector<ShownValue>> showValues(const AttrValue& value,
                                                  const std::optional<Feature>& feature) {
    std::vector<ShownValue> values;
    const auto add = [&](const AttrValue& one) {
        const std::optional<ShownValue> shown = showOne(one, feature);
        if (shown) {
            values.push_back(*shown);
        }
        return shown.has_value();
    };
    if (!value.is1setOf()) {
        return add(value) ? std::optional(values) : std::nullopt;
    }
    const AttrNodeList& members = membersOf(value);
    for (std::uint32_t index = 0; index < members.getNumberOfNodes(); ++index) {
        if (!add(members.getNodeAt(index).getAttrValue())) {
            return std::nullopt;
        }
    }
    return values;
}

Json toJson(const ShownValue& value) {
    return Json::object().add("value", value.value).add("text", value.text);
}

Json toJson(const std::vector<ShownValue>& values) {
    Json list = Json::array();
    for (const ShownValue& value : values) {
        list.add(toJson(value));
    }
    return list;
}

std::string joinValues(const std::vector<ShownValue>& values) {
    return join(values, &ShownValue::value, ",");
}

std::string joinTexts(const std::vector<ShownValue>& values) {
    return join(values, &ShownValue::text, ", ");
}

namespace {

std::optional<Feature> findFeature(const std::string& name) {
    return Feature::exists(name) ? std::optional(Feature::named(name)) : std::nullopt;
}

class Outliner {
public:
    std::vector<OutlineLine> m_lines;

    void addList(const AttrNodeList& list, const std::string& prefix, unsigned depth) {
        std::map<std::string, unsigned> seen;
        for (std::uint32_t index = 0; index < list.getNumberOfNodes(); ++index) {
            const AttrNode& node = list.getNodeAt(index);
            if (!node.isPrivate()) {
                const std::string name = toUtf8(node.getName());
                const unsigned repeats = seen[name]++;
                addNode(node.getAttrValue(), name,
                        prefix + name + (repeats > 0 ? "#" + std::to_string(repeats + 1) : ""),
                        prefix, depth);
            }
        }
    }

    void addNode(const AttrValue& value, const std::string& name, const std::string& path,
                 const std::string& prefix, unsigned depth) {
        const std::optional<Feature> feature = findFeature(name);
        const std::string label = feature ? feature->getDisplayName() : name;
        if (const auto values = showValues(value, feature)) {
            m_lines.push_back({depth, false, path, label, *values});
        } else if (value.is1setOf()) {
            addMembers(membersOf(value), feature, label, path, prefix, depth);
        } else {
            addCollection(value, feature, label, path, prefix, depth);
        }
    }

private:
    void addMembers(const AttrNodeList& members, const std::optional<Feature>& feature,
                    const std::string& label, const std::string& path, const std::string& prefix,
                    unsigned depth) {
        for (std::uint32_t index = 0; index < members.getNumberOfNodes(); ++index) {
            const AttrValue& member = members.getNodeAt(index).getAttrValue();
            const std::string memberPath = path + "[" + std::to_string(index) + "]";
            const std::string memberLabel = label + " " + std::to_string(index + 1);
            // The features of the first member are addressed by their names alone.
            addCollection(member, index == 0 ? feature : std::nullopt, memberLabel, memberPath,
                          prefix, depth);
        }
    }

    void addCollection(const AttrValue& value, const std::optional<Feature>& feature,
                       const std::string& label, const std::string& path, const std::string& prefix,
                       unsigned depth) {
        if (const auto values = value.isList() ? std::nullopt : showValues(value, feature)) {
            // A value among the collections of a set.
            m_lines.push_back({depth, false, path, label, *values});
            return;
        }
        m_lines.push_back({depth, true, path, label, {}});
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

Json toJson(const std::vector<OutlineLine>& outline) {
    Json features = Json::array();
    for (const OutlineLine& line : outline) {
        if (line.isHeading) {
            continue;
        }
        features.add(Json::object()
                         .add("path", line.path)
                         .add("name", line.label)
                         .add("values", toJson(line.values)));
    }
    return features;
}

ShownValue describeAttribute(const std::string& name, const AttrValue& value) {
    Outliner outliner;
    outliner.addNode(value, name, name, "", 0);
    ShownValue all;
    for (const OutlineLine& line : outliner.m_lines) {
        if (line.path == name && !line.isHeading) {
            return {joinValues(line.values), joinTexts(line.values)};
        }
        if (!line.isHeading) {
            const std::string start = all.value.empty() ? "" : " ";
            all.value += start + line.path + "=" + joinValues(line.values);
        }
    }
    all.text = all.value;
    return all;
}

} // namespace jobticket
