#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/FeatureSettings/FeatureValue.h"
#include "ocore/FeatureSettings/Resolution.h"
#include "ocore/FeatureSettings/SettingIdentifier.h"

namespace zent {

/// A typed window on one node list, which it owns or views. It has no store of its own: a setting
/// is specified when its attribute is in the list, at the place that its NestedAttrID names.
///
/// `instance` counts the nodes of the setting's leaf name inside the list that holds them, its
/// container. Gets return false where the attribute is absent and raise
/// AttributeTypeMismatchException where it is of another kind, also for a parent that isn't a list;
/// sets create the parents that are missing.
///
/// A view is a short-lived stack object: it is valid as long as its list lives and the list's owner
/// isn't assigned. Copying an owner copies the list; copying a view gives a view on the same list.
class Settings {
public:
    /// Owns an empty list.
    Settings();
    /// Owns a deep copy of a list.
    explicit Settings(const AttrNodeList& list);
    /// Owns a list that is moved in.
    explicit Settings(AttrNodeList&& list);
    /// Views a list.
    explicit Settings(AttrNodeList* list) : m_list(list) {}
    Settings(const Settings& other);
    Settings& operator=(const Settings& other);
    Settings(Settings&& other) noexcept;
    Settings& operator=(Settings&& other) noexcept;
    virtual ~Settings() = default;

    /// Copies the settings: an owner with its list, a view as another view on the same list.
    virtual std::unique_ptr<Settings> clone() const;
    virtual void dump() const;

    /// The list in use.
    AttrNodeList* getAttrNodeList() { return m_list; }
    const AttrNodeList* getAttrNodeList() const { return m_list; }
    /// Makes this the owner of a deep copy of the list, unless that is the list in use.
    void setAttrNodeList(const AttrNodeList& list);

    bool isEmpty() const { return m_list->getNumberOfNodes() == 0; }
    bool isSpecified(const _SI& setting) const;
    /// The number of nodes in the container, of whatever name: the count of a set's members.
    std::uint32_t getInstanceCount(const _SI& setting) const;
    /// The number of values: of a setting in a set the members, else the nodes of its name.
    std::uint32_t getNumberOfValues(const _SI& setting) const;

    bool getString(const _SI& setting, CXString* target, std::uint32_t instance = 0) const;
    bool getLong(const _SI& setting, std::int32_t* target, std::uint32_t instance = 0) const;
    /// All numbers of a setting in order, found in one walk.
    std::vector<std::int32_t> getLongs(const _SI& setting) const;
    bool getBool(const _SI& setting, bool* target, std::uint32_t instance = 0) const;
    bool getRange(const _SI& setting, std::int32_t* lower, std::int32_t* upper,
                  std::uint32_t instance = 0) const;
    /// A missing or incomplete resolution leaves the target unspecified.
    bool getResolution(const _SI& setting, Resolution* target, std::uint32_t instance = 0) const;
    /// Gives the unspecified value if there is none. A value that isn't known is added to those of
    /// run time; where that isn't possible, UnknownFeatureRequestException is raised.
    FeatureValue getFeatureValue(const _SI& setting, std::uint32_t instance = 0) const;

    /// Setting an instance that doesn't exist appends. The unspecified value removes the instance
    /// and each parent that this leaves empty.
    void setFeatureValue(const _SI& setting, FeatureValue value, std::uint32_t instance = 0);
    /// These store a text or number in the setting's first syntax, whichever that is.
    void setString(const _SI& setting, const CXString& text, std::uint32_t instance = 0);
    void setLong(const _SI& setting, std::int32_t value, std::uint32_t instance = 0);
    void setBool(const _SI& setting, bool value, std::uint32_t instance = 0);
    void setRange(const _SI& setting, std::int32_t lower, std::int32_t upper,
                  std::uint32_t instance = 0);
    /// An unspecified resolution removes the instance.
    void setResolution(const _SI& setting, const Resolution& resolution,
                       std::uint32_t instance = 0);
    /// Raises UnknownCaseException for a list syntax.
    void setAttribute(const _SI& setting, const CXString& text, const CXString& syntax,
                      std::uint32_t instance = 0);

    /// A copy of the first node of the setting, whatever the instance; null if there is none.
    std::unique_ptr<AttrNode> getNode(const _SI& setting, std::uint32_t instance = 0) const;
    /// Puts the node's value at the first place of the setting, whatever the instance.
    void setNode(const _SI& setting, const AttrNode& node, std::uint32_t instance = 0);
    /// Takes the first value of the setting from other settings, or its absence; `removeParents`
    /// then removes what has become empty.
    void copyFeature(const _SI& setting, const Settings& other, bool removeParents);
    bool isSameFeature(const _SI& setting, const Settings& other, std::uint32_t instance = 0) const;

    /// Drops all lists that are empty, at all depths.
    void removeEmptyLists() { m_list->removeEmptyLists(); }

protected:
    const AttrNodeList* findContainer(const _SI& setting) const;
    AttrNodeList* findContainer(const _SI& setting);
    AttrNodeList& findOrCreateContainer(const _SI& setting);
    /// The embedded list of the setting at an instance, created with a syntax if it isn't there.
    AttrNodeList& findOrCreateNestedList(const _SI& setting, const CXString& syntax,
                                         std::uint32_t instance);

private:
    const AttrNode* findLeaf(const _SI& setting, std::uint32_t instance) const;
    void removeInstance(const _SI& setting, std::uint32_t instance);

    std::unique_ptr<AttrNodeList> m_ownedList; // null in a view
    AttrNodeList* m_list;
};

} // namespace zent
