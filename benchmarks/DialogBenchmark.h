#pragma once

#include <memory>
#include <vector>

#include "TicketSession.h"
#include "ZENT_API/ZENTSession.h"
#include "ocore/Stock/StockInformation.h"
#include "plugin_ui/ConfigurableUIComponent.h"
#include "plugin_ui/DialogResource.h"

namespace zent::bench {

/// What a dialog does before the user sees it, and at each change, without the window system: the
/// objects of the job notes made and pruned; a template merged of 12 pages with 60 items each,
/// beside reading the same templates; and a change shown by 60 features, beside reading their
/// values from the ticket. The names are "dialog/SUBJECT/SUBJECT's maker".
class DialogBenchmark {
public:
    DialogBenchmark();

    void registerAll();

private:
    void fillTree();
    void registerConstruction();
    void registerMerge();
    void registerChange();

    TicketSession m_ticket;
    ZENTSession& m_session;
    StockInformation m_stocks;
    UIConfiguration m_configuration;
    std::vector<std::byte> m_base;
    std::vector<std::byte> m_page;
    std::vector<FeatureEnum> m_features; // the features of the tree
    ConfigurableUIComponent m_tree;
};

} // namespace zent::bench
