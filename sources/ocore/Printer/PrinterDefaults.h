#pragma once

#include <memory>

#include "ocore/FeatureSettings/FeatureSettings.h"
#include "ocore/Models/PrinterModel.h"
#include "ocore/Resources/ResourceLibrary.h"

namespace zent {

/// A printer's factory default settings.
class PrinterDefaults {
public:
    PrinterDefaults(const PrinterModel& model, std::uint32_t form);

    const FeatureSettings& getSettings() const { return m_settings; }

private:
    void addCommonDefaults();
    void addUserDefaults();

    ResourceLibrary m_resources;
    std::unique_ptr<PrinterModel> m_model;
    std::uint32_t m_form;
    FeatureSettings m_settings;
};

} // namespace zent
