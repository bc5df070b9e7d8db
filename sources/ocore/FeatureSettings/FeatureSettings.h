#pragma once

#include <functional>

#include "ocore/FeatureSettings/Settings.h"
#include "ocore/FeatureSettings/StockSize.h"

namespace zent {

/// A ticket's content: Settings with what knows about particular features. Page-level data, such as
/// the members of "page-overrides", are tickets in themselves, reached as nested settings.
class FeatureSettings : public Settings {
public:
    using Settings::Settings;

    std::unique_ptr<Settings> clone() const override;
    void dump() const override { Settings::dump(); }

    /// The size that "x-dimension" and "y-dimension" give; unspecified unless both are there.
    StockSize getStockSize() const;
    /// Stores the short edge in "x-dimension" and the long one in "y-dimension", so that a ticket
    /// always carries a size in portrait order; the unspecified size removes both.
    void setStockSize(const StockSize& size);

    /// A view on the collection at an instance of a feature, or new, empty, owning settings: what
    /// is written to those changes nothing here.
    FeatureSettings getNestedSettings(const _SI& setting, std::uint32_t instance = 0);
    /// Shows a view on each collection of a feature to `visit`, in order and in one walk.
    void visitNestedSettings(const _SI& setting,
                             const std::function<void(FeatureSettings&)>& visit);
    /// Fills the target with an owning, deep copy of that collection.
    void getNestedSettingsCopy(FeatureSettings* target, const _SI& setting,
                               std::uint32_t instance = 0) const;
    /// Stores a deep copy of the other's list, which may lie in this one, as the collection.
    void setNestedSettings(const _SI& setting, const FeatureSettings& nested,
                           std::uint32_t instance = 0);

    /// Does both of what follows. What makes no sense at its place, such as a collection for a
    /// shift, stays as it is, for the check to find: what can be exported can be imported. True if
    /// anything may have changed.
    bool normalize();
    /// Gives each page override its shape (see shapeAsPageOverride). True if any changed.
    bool normalizePageOverrides();
    /// Turns the general image shifts, here and in each page override, into those of the sides that
    /// are printed. True if any was found.
    bool normalizeImageShift();
    /// Makes these settings begin with a document range, from 1 to 1 if they have none, and then
    /// the page range, as printers require of a page override. True if anything changed.
    bool shapeAsPageOverride();

private:
    bool changeEachPageOverride(const std::function<bool(FeatureSettings&)>& operation);
    bool convertImageShift(bool bothSides);
    bool moveShift(FeatureEnum general, FeatureEnum side1, FeatureEnum side2, bool bothSides);
};

} // namespace zent
