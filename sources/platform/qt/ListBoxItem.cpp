#include "platform/qt/ListBoxItem.h"

#include "platform/qt/Dialog.h"

namespace zent::platform::qt {

namespace {

constexpr std::uint32_t sorted = 2;

} // namespace

ListBoxItem::ListBoxItem(Dialog& dialog, const DialogTemplate::Item& source)
    : ListBoxItem(dialog, source, *new QListWidget(&dialog.surface())) {}

ListBoxItem::ListBoxItem(Dialog& dialog, const DialogTemplate::Item& source, QListWidget& list)
    : OpenListItem(dialog, source, list, list, (source.style & sorted) != 0) {
    QObject::connect(&list, &QListWidget::itemSelectionChanged, &list,
                     [this] { this->dialog().tellCommand(getId(), notification::listSelected); });
    QObject::connect(&list, &QListWidget::itemDoubleClicked, &list, [this] {
        this->dialog().tellCommand(getId(), notification::listDoubleClicked);
    });
}

} // namespace zent::platform::qt
