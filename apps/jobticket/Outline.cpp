#include "Outline.h"

#include <map>

#include "Text.h"
#include "ocore/Attributes/IppList.h"

namespace jobticket {

namespace {

using zent::AttrNode;
using zent::AttrNodeList;
using zent::AttrValue;

const AttrNodeList& membersOf(const AttrValue& value) {
    return static_cast<const zent::IppList&>(value).getAttrNodeList();
}

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
            // Features are found in the first member of a set by themselves.
            addCollection(member, index == 0 ? feature : std::nullopt, memberLabel, memberPath,
                          prefix, depth);
        }
    }

    void addCollection(const AttrValue& value, const std::optional<Feature>& feature,
                       const std::string& label, const std::string& path, const std::string& prefix,
                       unsigned depth) {
        if (const auto values = value.isList() ? std::nullopt : showValues(value, feature)) {
            m_lines.push_back({depth, false, path, label, *values}); // among collections of a set
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
