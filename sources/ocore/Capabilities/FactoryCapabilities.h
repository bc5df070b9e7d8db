#pragma once

#include <memory>
#include <vector>

#include "ocore/Capabilities/ResourceCapabilities.h"
#include "ocore/Models/PrinterModel.h"

namespace zent {

/// The capability document of a model's family, and what the printer tables add to it.
class FactoryCapabilities : public ResourceCapabilities {
public:
    FactoryCapabilities(const PrinterModel& model, std::uint32_t form);

    /// Writes the limits that all printers share and those of the family; adds the features that
    /// the page description language doesn't offer to `missing`.
    void addFactoryCapabilities(Settings& capabilities, std::vector<_FI>& missing) const;

private:
    std::unique_ptr<PrinterModel> m_model;
};

} // namespace zent
