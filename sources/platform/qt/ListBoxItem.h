#pragma once

#include "platform/qt/OpenListItem.h"

namespace zent::platform::qt {

class ListBoxItem final : public OpenListItem {
public:
    ListBoxItem(Dialog& dialog, const DialogTemplate::Item& source);

private:
    ListBoxItem(Dialog& dialog, const DialogTemplate::Item& source, QListWidget& list);
};

} // namespace zent::platform::qt
