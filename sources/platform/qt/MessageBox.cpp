#include "platform/qt/MessageBox.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include <QMessageBox>

namespace zent::platform::qt {

namespace {

/// A button, and the answer that it stands for.
struct Answer {
    QMessageBox::StandardButton button;
    std::int32_t number;
};

constexpr Answer answers[] = {
    {QMessageBox::Ok, 1},    {QMessageBox::Cancel, 2}, {QMessageBox::Abort, 3},
    {QMessageBox::Retry, 4}, {QMessageBox::Ignore, 5}, {QMessageBox::Yes, 6},
    {QMessageBox::No, 7},
};

using Buttons = std::vector<QMessageBox::StandardButton>;

Buttons buttonsOf(std::uint32_t flags) {
    switch (flags & 0xF) {
    case 1:
        return {QMessageBox::Ok, QMessageBox::Cancel};
    case 2:
        return {QMessageBox::Abort, QMessageBox::Retry, QMessageBox::Ignore};
    case 3:
        return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
    case 4:
        return {QMessageBox::Yes, QMessageBox::No};
    case 5:
        return {QMessageBox::Retry, QMessageBox::Cancel};
    default:
        return {QMessageBox::Ok};
    }
}

QMessageBox::Icon iconOf(std::uint32_t flags) {
    switch (flags & 0xF0) {
    case 16:
        return QMessageBox::Critical;
    case 32:
        return QMessageBox::Question;
    case 48:
        return QMessageBox::Warning;
    case 64:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

} // namespace

std::int32_t showMessageBox(QWidget* owner, const QString& body, const QString& title,
                            std::uint32_t flags) {
    const Buttons buttons = buttonsOf(flags);
    const std::size_t defaultButton = flags >> 8 & 3;
    QMessageBox box(iconOf(flags), title, body, QMessageBox::NoButton, owner);
    box.setTextFormat(Qt::PlainText);
    box.setAttribute(Qt::WA_QuitOnClose, false);
    for (const QMessageBox::StandardButton button : buttons) {
        box.addButton(button);
    }
    box.setDefaultButton(buttons[std::min(defaultButton, buttons.size() - 1)]);
    const int pressed = box.exec();
    const auto* const answer = std::find_if(std::begin(answers), std::end(answers),
                                            [&](const Answer& a) { return a.button == pressed; });
    return answer != std::end(answers) ? answer->number : 0;
}

} // namespace zent::platform::qt
