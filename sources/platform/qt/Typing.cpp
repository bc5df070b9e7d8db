#include "platform/qt/Typing.h"

namespace zent::platform::qt {

QString typedBy(const QKeyEvent& event) {
    QString text = event.text();
    if (text.isEmpty()) {
        return {};
    }
    const QChar first = text.front();
    const QChar::Category category = first.category();
    if (category == QChar::Other_Format) { // some keyboards type joiners and the like with Control
        return text;
    }
    // Control and Alt together are the AltGr of some keyboards.
    const Qt::KeyboardModifiers held =
        event.modifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier);
    const bool isTyped =
        first.isPrint() || first.isSurrogate() || category == QChar::Other_PrivateUse;
    return isTyped && held != Qt::ControlModifier ? text : QString();
}

} // namespace zent::platform::qt
