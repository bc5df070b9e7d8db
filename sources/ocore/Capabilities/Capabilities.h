#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "ocore/Capabilities/CapabilityIndex.h"
#include "ocore/Capabilities/FactoryCapabilities.h"
#include "ocore/FeatureSettings/CapabilityIdentifier.h"
#include "ocore/FeatureSettings/FeatureSettings.h"
#include "ocore/Models/AjtPrinterTraits.h"
#include "ocore/Models/PrinterModel.h"

namespace zent {

/// What is known of one printer: a list of capabilities, filled once from a capability document and
/// the printer tables, never changed after that, and read through narrow, typed queries.
///
/// Where data are missing, the queries for a range, an upper limit, a precision and a character
/// restriction raise MissingCapabilityDataException; all others have an answer of their own.
class Capabilities {
public:
    /// Reads the capability document of the model's family.
    Capabilities(const PrinterModel& model, std::uint32_t form);
    /// Reads the capability document that a source gives.
    Capabilities(const PrinterModel& model, std::uint32_t form, const CapabilitySource& source);

    /// The capability list, read with _CI.
    const Settings& getSettings() const { return m_settings; }
    const PrinterModel& getModel() const { return *m_model; }
    std::uint32_t getInstructionForm() const { return m_instructionForm; }

    /// Whether the printer's default is a choice of the feature. `hasCapability` is for features
    /// whose table leaves that to the model.
    bool isPrinterDefaultAvailable(const _FI& feature, bool hasCapability = false) const;
    /// Whether the printer has the feature, at the top of a ticket or through a parent feature.
    bool isFeatureSupported(const _FI& feature) const;
    /// Whether a feature may stand in a container feature, any number of levels below it.
    bool isMemberOf(const _FI& container, const _FI& member) const;

    /// Gives the least and the greatest number of all ranges of the feature, whatever gaps lie
    /// between these.
    void getFeatureCapabilities(const _FI& feature, std::int32_t& lower, std::int32_t& upper) const;
    std::uint32_t getUpperLimit(const _FI& feature) const;
    std::uint32_t getPrecision(const _FI& feature) const;
    std::uint32_t getCharacterSetRestriction(const _FI& feature) const;

    /// The values that the printer has, in the order of FeatureValue: the printer's default first,
    /// where it is a choice. Values that aren't known are left out.
    std::vector<FeatureValue> getFeatureCapabilities(const _FI& feature, bool hasCapability) const;
    /// The member features, by name. Names that aren't known are left out.
    std::vector<_FI> getMemberFeatures(const _FI& feature) const;
    /// An unspecified resolution, the printer's default, first, where it is a choice.
    std::vector<Resolution> getResolutionValues(bool hasCapability = false) const;
    /// The standard sizes that the printer takes; an unspecified one first, where the printer's
    /// default is a choice, and "SIZE_OTHER" last, always.
    std::vector<StockSize> getStockSizeValues(bool hasCapability = false) const;
    SizeLimits getStockSizeLimits() const;

    /// The answers are true unless the capability list says otherwise.
    bool allowsEmbeddedSpaces(const _FI& feature) const;
    bool isSeparateCoversCapable() const;
    bool isInsertMultipleMediaCapable() const;
    bool isTiffPrintSaveCapable() const;
    /// Whether users may invent values of the feature.
    bool isUserDefinable(const _FI& feature) const;
    const std::vector<_FI>& getCollectionFeatures() const { return m_collectionFeatures; }

    AjtPrinterTraits getAjtPrinterTraits() const;

    /// The index of the capability list by attributes.
    const CapabilityIndex& getIndex() const { return *m_index; }

private:
    void finishConstruction();
    void removeFeature(const _FI& feature);
    void adjustMediaCapabilities();
    void addKeyword(const _CI& set, const _FI& feature);
    void removeKeyword(const _CI& set, const _FI& feature);
    bool hasKeyword(const _CI& set, const CXString& keyword) const;
    bool getBool(FeatureEnum feature, CapabilityType type, bool otherwise) const;
    std::uint32_t getNumber(const _FI& feature, CapabilityType type, const char* operation) const;

    std::unique_ptr<PrinterModel> m_model;
    std::uint32_t m_instructionForm;
    FactoryCapabilities m_source;
    Settings m_settings;
    std::vector<_FI> m_collectionFeatures;
    std::unique_ptr<const CapabilityIndex> m_index; // into the settings
};

} // namespace zent
