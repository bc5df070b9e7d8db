// One capability document serves all models of a family and all their languages. What it doesn't
// say comes from the tables and is written over the document's capabilities here: limits of texts,
// pages, shifts and media, and what a language lacks. The features that it lacks are only named:
// Capabilities knows all the places of a feature in its list.

#include "ocore/Models/PrinterModel.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "ocore/Faults/Exceptions.h"
#include "ocore/FeatureSettings/CapabilityIdentifier.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/Resources/ResourceLibrary.h"

namespace zent {

namespace {

constexpr std::array imageShifts{feature::xSide1ImageShift, feature::ySide1ImageShift,
                                 feature::xSide2ImageShift, feature::ySide2ImageShift};

constexpr std::uint32_t xmlForm = 1;
constexpr std::uint32_t streamForm = 2;

void setRange(Settings& capabilities, FeatureEnum feature, std::uint32_t lower,
              std::uint32_t upper) {
    capabilities.setRange(_CI(feature, CAPTYPE_INT_RANGE), static_cast<std::int32_t>(lower),
                          static_cast<std::int32_t>(upper));
}

void setNumber(Settings& capabilities, FeatureEnum feature, CapabilityType type,
               std::uint32_t number) {
    capabilities.setLong(_CI(feature, type), static_cast<std::int32_t>(number));
}

void addFeatures(std::vector<_FI>& features, FeatureEnum first, FeatureEnum last) {
    for (FeatureEnum number = first; number <= last; ++number) {
        features.emplace_back(number);
    }
}

template <typename Table, typename Predicate>
std::optional<std::uint32_t> findRow(const Table& table, Predicate predicate) {
    const auto found = std::ranges::find_if(table, predicate);
    if (found == table.end()) {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(found - table.begin());
}

} // namespace

PrinterModel::PrinterModel(std::uint32_t model, std::uint32_t pdl)
    : m_model(model), m_pdl(pdl), m_modelIndex(getModelInfoIndex(model)),
      m_familyIndex(getFamilyInfoIndex(getModelTable()[m_modelIndex].family)) {}

std::uint32_t PrinterModel::getDriverInfoIndex(std::uint32_t model, std::uint32_t pdl) {
    const auto row = findRow(getDriverTable(), [&](const DriverInfo& driver) {
        return driver.model == model && driver.pdl == pdl;
    });
    if (!row) {
        Raise<IndexOutOfBoundsException>()(
            "PrinterModel::getDriverInfoIndex(): Could not find the printer driver by model %ld "
            "and PDL %ld in the table of printer driver information.\r\n",
            model, pdl);
    }
    return *row;
}

std::uint32_t PrinterModel::getModelInfoIndex(std::uint32_t model) {
    const auto row =
        findRow(getModelTable(), [&](const ModelInfo& info) { return info.model == model; });
    if (!row) {
        Raise<IndexOutOfBoundsException>()(
            "PrinterModel::getModelInfoIndex(): Could not find the model enumeration value (%ld) "
            "in the table of printer model information.\r\n",
            model);
    }
    return *row;
}

std::uint32_t PrinterModel::getFamilyInfoIndex(std::uint32_t family) {
    const auto row =
        findRow(getFamilyTable(), [&](const FamilyInfo& info) { return info.family == family; });
    if (!row) {
        Raise<IndexOutOfBoundsException>()(
            "PrinterModel::getFamilyInfoIndex(): Could not find the family enumeration value (%ld) "
            "in the table of printer family information.\r\n",
            family);
    }
    return *row;
}

CXString PrinterModel::getDriverName() const {
    return getDriverTable()[getDriverInfoIndex(m_model, m_pdl)].driverName;
}

CXString PrinterModel::getDisplayName() const {
    return ResourceLibrary().getString(getModelTable()[m_modelIndex].displayNameStringID);
}

std::uint32_t PrinterModel::getCapabilityResource(std::uint32_t form) const {
    return form == streamForm ? family().capabilityResource2 : family().capabilityResource1;
}

std::unique_ptr<PrinterModel> PrinterModel::clone() const {
    return std::make_unique<PrinterModel>(*this);
}

void PrinterModel::addFactoryCapabilities(Settings& capabilities, std::vector<_FI>& missing) const {
    capabilities.setBool(_CI(TJTF_ANY, CAPTYPE_SEPARATE_COVERS), isSeparateCoversCapable());
    capabilities.setBool(_CI(TJTF_ANY, CAPTYPE_INSERT_MULTIPLE_MEDIA),
                         isInsertMultipleMediaCapable());
    capabilities.setBool(_CI(TJTF_ANY, CAPTYPE_TIFF_PRINT_SAVE), isTiffPrintSaveCapable());
    capabilities.setBool(_CI(feature::mediaType, CAPTYPE_EMBEDDED_SPACES),
                         getMediaTextCapability());
    capabilities.setBool(_CI(feature::mediaColor, CAPTYPE_EMBEDDED_SPACES),
                         getMediaTextCapability());
    for (const FeatureEnum pages : {feature::pageRanges, feature::pagesPerSubset, feature::pages}) {
        setRange(capabilities, pages, 1, getMaxPageNumber());
    }
    addTextCapabilities(capabilities);
    for (const FeatureEnum shift : imageShifts) {
        setNumber(capabilities, shift, CAPTYPE_PRECISION, getImageShiftRule());
    }
    capabilities.setBool(_CI(feature::inputDocuments, CAPTYPE_IS_SUPPORTED), true);
    const AjtPrinterTraits::MediaSizeLimits& limits = getTraits().mediaSizeLimits;
    capabilities.setRange(_CI(feature::xDimension, CAPTYPE_INT_RANGE), limits.xMinimum,
                          limits.xMaximum);
    capabilities.setRange(_CI(feature::yDimension, CAPTYPE_INT_RANGE), limits.yMinimum,
                          limits.yMaximum);
    addMissingFeatures(missing);
}

void PrinterModel::addTextCapabilities(Settings& capabilities) const {
    setNumber(capabilities, feature::jobName, CAPTYPE_INT_UPPER_LIMIT, getJobNameLimit());
    setNumber(capabilities, feature::jobName, CAPTYPE_CHAR_RESTRICTION, getJobNameRule());
    for (const FeatureEnum account :
         {feature::jobAccountID, feature::jobAccountingUserID, feature::jobAccountingData}) {
        setRange(capabilities, account, getAccountRangeLower(), getAccountRangeUpper());
        setNumber(capabilities, account, CAPTYPE_CHAR_RESTRICTION, getAccountRule());
    }
    const std::pair<FeatureEnum, std::uint32_t> limits[] = {
        {feature::requestingUserName, getRequestingUserLimit()},
        {feature::jobRecipientName, getRecipientLimit()},
        {feature::jobSheetMessage, getSheetMessageLimit()},
        {feature::jobMessageToOperator, getOperatorMessageLimit()},
        {feature::jobPhoneNumber, getPhoneNumberLimit()},
        {feature::mediaColor, getMediaColorLimit()},
    };
    for (const auto& [text, limit] : limits) {
        setNumber(capabilities, text, CAPTYPE_INT_UPPER_LIMIT, limit);
    }
}

void PrinterModel::addMissingFeatures(std::vector<_FI>& missing) const {
    const bool isPostScript = m_pdl == pageLanguage::postScript;
    const bool isColorPcl = m_pdl == pageLanguage::colorPcl;
    if (!isPostScript && !isColorPcl) {
        addFeatures(missing, feature::highlightColorant, feature::colorDeviceCmykBlack);
        addFeatures(missing, feature::colorSrgbCol, feature::colorDeviceCmykCol);
        missing.emplace_back(feature::highlightMapColorCustomCol);
    }
    if (!isPostScript) {
        addFeatures(missing, feature::opiImageInsertion, feature::opiImagePreScan);
    }
    if (m_pdl != pageLanguage::monochromePcl && !isColorPcl) {
        missing.emplace_back(feature::pclPaperSourceCol);
        missing.emplace_back(feature::paperSourceNumber);
    }
}

void PrinterModel::addFactoryDefaults(FeatureSettings& settings, std::uint32_t form) const {
    for (const FeatureEnum shift : imageShifts) {
        settings.setLong(_FI(shift), 0);
    }
    settings.setFeatureValue(_FI(feature::mediaWeightMetric), FeatureValue());
    if (family().rotationDefault) {
        settings.setFeatureValue(_FI(feature::pageRotation), FeatureValue(value::rotate0));
    }
    if (!family().mediaColorDefault) {
        settings.setFeatureValue(_FI(feature::mediaColor), FeatureValue());
    }
    if (family().impositionDefault) {
        settings.setFeatureValue(_FI(feature::impositionTemplate),
                                 FeatureValue(value::impositionNone));
    }
    if (!family().side2ShiftDefault) {
        settings.setFeatureValue(_FI(feature::xSide2ImageShift), FeatureValue());
        settings.setFeatureValue(_FI(feature::ySide2ImageShift), FeatureValue());
    }
    if (family().opiDefault && form == xmlForm && m_pdl == pageLanguage::postScript) {
        settings.setFeatureValue(_FI(feature::opiImageInsertion), FeatureValue(value::opiInsert));
        settings.setFeatureValue(_FI(feature::opiImagePreScan), FeatureValue(value::opiNoPreScan));
    }
}

bool PrinterModel::isFeatureEnabled(const _FI& feature, bool hasCapability,
                                    std::uint32_t form) const {
    switch (feature.getFeature()) {
    case feature::sides:
    case feature::pageRotation:
        if (hasCapability) {
            return true;
        }
        break;
    case feature::jobName:
        if (form == streamForm) {
            return false;
        }
        break;
    case feature::xDimension:
    case feature::yDimension:
    case feature::mediaColor:
    case feature::mediaType:
    case feature::mediaHoleCount:
    case feature::mediaWeightMetric:
    case feature::mediaSize:
        if (hasCapability && form == streamForm) {
            return false;
        }
        break;
    default:
        break;
    }
    return getFeatureDefault();
}

} // namespace zent
