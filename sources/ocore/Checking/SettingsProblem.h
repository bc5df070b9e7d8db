#pragma once

#include <cstdint>
#include <memory>

#include "ocore/Attributes/AttrValue.h"
#include "ocore/Checking/RemovedNodes.h"
#include "ocore/Checking/SettingsContext.h"
#include "ocore/FeatureSettings/Settings.h"

namespace zent {

/// What a repair does to the ticket.
enum class RepairAction : std::uint32_t {
    remove = 1,        // the node goes
    removeFromSet = 2, // the node goes; with the last member, the set goes too
    replace = 3,       // the node gets another value
    addDefault = 4,    // the feature is added from the printer's defaults
};

struct SettingsRepair {
    RepairAction action = RepairAction::remove;
    // The node that is removed or changed; null for what is added, and where there is nothing to
    // remove.
    AttrNode* node = nullptr;
    std::unique_ptr<AttrValue> value; // the new one; null for a removal
};

/// One thing in a ticket that the printer can't do. It points into the ticket, which must stay as
/// it is, apart from what fix() does, as long as the problem is used.
class SettingsProblem {
public:
    /// The kinds, in the order in which a ticket is repaired: what goes as a whole goes first, and
    /// what is missing is looked at last, in the ticket as the other repairs have left it.
    enum class Kind : std::uint32_t {
        unsupportedAttribute = 1,
        unsupportedValue = 2,
        failedCapability = 3,
        missingFeature = 4,
    };

    virtual ~SettingsProblem() = default;

    /// Repairs the ticket, by the printer's default settings where that needs a value.
    virtual void fix(const Settings& defaults, RemovedNodes& removed);
    /// Decides what fix() is to do; changes nothing.
    virtual SettingsRepair findRepair(const Settings& defaults) const = 0;
    virtual std::unique_ptr<SettingsProblem> clone() const = 0;
    /// The same kind of problem with the same node and limits.
    virtual bool isEqual(const SettingsProblem& other) const = 0;
    /// The feature's name for users; the attribute's name, with a trace, where there is none.
    virtual CXString getProblemFeatureName() const;
    /// Finds the nodes again in a list of the same shape, such as a copy of the ticket. False, and
    /// nothing changed, if they aren't there.
    virtual bool refreshContext(AttrNodeList& root) { return m_context.refresh(root); }
    /// The name of the attribute; for a member of a set the name of the set.
    virtual CXString getAttributeName() const { return m_context.getAttributeName(); }
    virtual Kind getKind() const = 0;

    const SettingsContext& getContext() const { return m_context; }

protected:
    explicit SettingsProblem(SettingsContext context) : m_context(std::move(context)) {}
    SettingsProblem(const SettingsProblem&) = default;
    SettingsProblem& operator=(const SettingsProblem&) = default;

    bool hasSamePlace(const SettingsProblem& other) const;
    /// The current value of the node.
    const AttrValue& getNodeValue() const { return m_context.getNode()->getAttrValue(); }
    SettingsRepair makeRemoval() const;
    SettingsRepair makeReplacement(std::unique_ptr<AttrValue> value) const;
    /// The name for users, or with a trace under `location` the attribute's.
    CXString getFeatureName(const char16_t* location) const;

private:
    void removeNode(const AttrNode* node, RemovedNodes& removed) const;

    SettingsContext m_context;
};

} // namespace zent
