// Problems point into the ticket. For users and programs the steps to a node become a part of the
// ticket, its pages, and a path as text.

#include "ocore/Repair/RepairLocation.h"

#include "ocore/Attributes/EmbeddedList.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/Faults/Exceptions.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "ocore/FeatureSettings/Settings.h"
#include "ocore/Resources/ResourceLibrary.h"
#include "resources/ids.h"

namespace zent {

namespace {

using Step = SettingsContext::Step;

/// Finds the entry of a feature, such as a page override: the step after the last node of its name.
/// Null if there is none.
const Step* findEntry(const std::vector<Step>& steps, const CXString& feature) {
    for (std::size_t i = steps.size(); i-- > 1;) {
        if (steps[i].inSet && steps[i - 1].node->getName() == feature) {
            return &steps[i];
        }
    }
    return nullptr;
}

void setPages(RepairLocation& location, bool isFound, std::int32_t first, std::int32_t last) {
    if (isFound) {
        location.hasPages = true;
        location.firstPage = first;
        location.lastPage = last;
    }
}

/// Reads the pages of an entry. The ticket may hold anything there: what is no number counts as
/// missing.
void readPages(RepairLocation& location, AttrNode& entry) {
    AttrNodeList* const list = embeddedList(entry);
    if (location.feature == feature::forceFrontSide && entry.getAttrValue().isPrimitiveInteger()) {
        const auto page = static_cast<const PrimitiveInteger&>(entry.getAttrValue()).getValue();
        setPages(location, true, page, page);
    }
    if (list == nullptr) {
        return;
    }
    const Settings settings(list);
    std::int32_t first = 0;
    std::int32_t last = 0;
    if (location.feature == feature::pageOverrides) {
        const bool isFound = settings.getRange(_FI(feature::pages), &first, &last);
        setPages(location, isFound, first, last);
    } else if (location.feature == feature::insertSheet) {
        const bool isFound = settings.getLong(_FI(feature::insertAfterPageNumber), &first);
        setPages(location, isFound, first, first);
    }
}

} // namespace

RepairLocation findLocation(const SettingsContext& context) {
    RepairLocation location;
    location.feature = context.getParentFeature();
    if (location.feature == TJTF_ANY) {
        if (context.getAttributeName() != _FI(feature::forceFrontSide).getName()) {
            return location;
        }
        location.feature = feature::forceFrontSide;
    }
    if (const Step* const entry = findEntry(context.getSteps(), _FI(location.feature).getName())) {
        location.entry = entry->position + 1;
        try {
            readPages(location, *entry->node);
        } catch (const AttributeTypeMismatchException&) {
            location.hasPages = false;
        }
    }
    return location;
}

CXString makePathText(const SettingsContext& context) {
    CXString text;
    for (const Step& step : context.getSteps()) {
        if (step.inSet) {
            text += formatText("[%lu]", step.position + 1);
        } else {
            text += text.isEmpty() ? u"" : u"/";
            text += step.node->getName();
        }
    }
    if (context.isMissing()) {
        text += text.isEmpty() ? u"" : u"/";
        text += context.getPath().getAttrID().getText();
    }
    return text;
}

CXString makeLocationText(const RepairLocation& location) {
    if (location.feature == TJTF_ANY) {
        return ResourceLibrary().getString(IDS_WHOLE_JOB);
    }
    CXString text = _FI(location.feature).getDisplayString();
    if (location.hasPages && location.firstPage != location.lastPage) {
        text += formatText(" (%ld - %ld)", location.firstPage, location.lastPage);
    } else if (location.hasPages) {
        text += formatText(" (%ld)", location.firstPage);
    }
    return text;
}

} // namespace zent
