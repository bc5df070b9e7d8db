#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "ocore/FeatureSettings/FeatureSettings.h"
#include "ocore/Models/PrinterTables.h"

namespace zent {

/// A printer model with a page description language: a small value that points into the printer
/// tables and answers from them. Lookups that fail raise IndexOutOfBoundsException. The language is
/// looked at only where it matters.
class PrinterModel {
public:
    PrinterModel(std::uint32_t model, std::uint32_t pdl);
    virtual ~PrinterModel() = default;
    PrinterModel(const PrinterModel&) = default;
    PrinterModel& operator=(const PrinterModel&) = default;

    /// The positions of rows in the tables.
    static std::uint32_t getDriverInfoIndex(std::uint32_t model, std::uint32_t pdl);
    static std::uint32_t getModelInfoIndex(std::uint32_t model);
    static std::uint32_t getFamilyInfoIndex(std::uint32_t family);

    std::uint32_t getModel() const { return m_model; }
    CXString getDriverName() const;
    /// The name for users, from the resource library.
    CXString getDisplayName() const;
    const AjtPrinterTraits& getTraits() const { return family().traits; }

    /// The resource of the capability document for an instruction form.
    virtual std::uint32_t getCapabilityResource(std::uint32_t form) const;
    virtual std::unique_ptr<PrinterModel> clone() const;
    /// Writes what the tables say as capabilities, and adds the features that the language doesn't
    /// offer to `missing`.
    virtual void addFactoryCapabilities(Settings& capabilities, std::vector<_FI>& missing) const;
    /// Sets the defaults that differ by family.
    virtual void addFactoryDefaults(FeatureSettings& settings, std::uint32_t form) const;
    /// Whether a feature offers the printer's default as a choice, for features whose table leaves
    /// that to the model.
    virtual bool isFeatureEnabled(const _FI& feature, bool hasCapability, std::uint32_t form) const;

    /// The columns of the family table.
    virtual bool takesOrdo() const { return family().takesOrdo; }
    virtual bool isSeparateCoversCapable() const { return family().capability1a; }
    virtual bool isInsertMultipleMediaCapable() const { return family().capability1b; }
    virtual bool isTiffPrintSaveCapable() const { return family().capability1c; }
    virtual bool getFeatureDefault() const { return family().featureDefault; }
    virtual bool getMediaTextCapability() const { return family().mediaTextCapability; }
    virtual std::uint32_t getMaxPageNumber() const { return family().maxPageNumber; }
    virtual std::uint32_t getJobNameLimit() const { return family().texts.jobNameLimit; }
    virtual std::uint32_t getJobNameRule() const { return family().texts.jobNameRule; }
    virtual std::uint32_t getAccountRangeUpper() const { return family().texts.accountRangeUpper; }
    virtual std::uint32_t getAccountRangeLower() const { return family().texts.accountRangeLower; }
    virtual std::uint32_t getAccountRule() const { return family().texts.accountRule; }
    virtual std::uint32_t getRequestingUserLimit() const {
        return family().texts.requestingUserLimit;
    }
    virtual std::uint32_t getRecipientLimit() const { return family().texts.recipientLimit; }
    virtual std::uint32_t getSheetMessageLimit() const { return family().texts.sheetMessageLimit; }
    virtual std::uint32_t getOperatorMessageLimit() const {
        return family().texts.operatorMessageLimit;
    }
    virtual std::uint32_t getPhoneNumberLimit() const { return family().texts.phoneNumberLimit; }
    virtual std::uint32_t getMediaColorLimit() const { return family().texts.mediaColorLimit; }
    virtual std::uint32_t getImageShiftRule() const { return family().imageShiftRule; }

private:
    const FamilyInfo& family() const { return getFamilyTable()[m_familyIndex]; }
    void addTextCapabilities(Settings& capabilities) const;
    void addMissingFeatures(std::vector<_FI>& missing) const;

    std::uint32_t m_model;
    std::uint32_t m_pdl;
    std::uint32_t m_modelIndex;
    std::uint32_t m_familyIndex;
};

} // namespace zent
