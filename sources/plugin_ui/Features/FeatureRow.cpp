#include "plugin_ui/Features/FeatureRow.h"

namespace zent {

void addFeatures(ConfigurableUIComponent& parent, std::span<const FeatureRow> rows) {
    const auto add = [&]<typename Row>(const Row& row) {
        parent.makeChild<typename Row::Class>(parent.getConfiguration(), row,
                                              parent.getParentFeature());
    };
    for (const FeatureRow& row : rows) {
        std::visit(add, row);
    }
}

} // namespace zent
