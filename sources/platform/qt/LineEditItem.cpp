#include "platform/qt/LineEditItem.h"

#include <algorithm>
#include <limits>
#include <memory>

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>

#include "platform/qt/Dialog.h"
#include "platform/qt/EditStyle.h"
#include "platform/qt/Typing.h"

namespace zent::platform::qt {

/// Offers what is entered to the item's rule, whichever way it comes: by keys, an input method, the
/// clipboard, the selection of the mouse's middle button, or a drop.
class LineEditItem::Entry final : public QLineEdit {
public:
    explicit Entry(QWidget* parent) : QLineEdit(parent) {}
    void setItem(LineEditItem& item) { m_item = &item; }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        const QString typed = isReadOnly() || isEnter ? QString() : typedBy(*event);
        if (event->matches(QKeySequence::Paste)) {
            pasteFrom(QClipboard::Clipboard);
        } else if (typed.isEmpty()) {
            QLineEdit::keyPressEvent(event);
        } else {
            enter(typed);
        }
    }

    void inputMethodEvent(QInputMethodEvent* event) override {
        if (!event->commitString().isEmpty()) {
            event->setCommitString(m_item->accept(event->commitString()), event->replacementStart(),
                                   event->replacementLength());
        }
        QLineEdit::inputMethodEvent(event);
    }

    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::MiddleButton) {
            deselect();
            pasteFrom(QClipboard::Selection);
        } else {
            QLineEdit::mouseReleaseEvent(event);
        }
    }

    void dropEvent(QDropEvent* event) override {
        deselect();
        setCursorPosition(cursorPositionAt(event->position().toPoint()));
        enter(event->mimeData()->text());
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }

    void contextMenuEvent(QContextMenuEvent* event) override {
        QMenu* const menu = createStandardContextMenu();
        menu->setAttribute(Qt::WA_DeleteOnClose);
        for (QAction* const action : menu->actions()) {
            if (action->text().startsWith(QLineEdit::tr("&Paste"))) {
                action->disconnect(this);
                connect(action, &QAction::triggered, this,
                        [this] { pasteFrom(QClipboard::Clipboard); });
            }
        }
        menu->popup(event->globalPos());
    }

private:
    void pasteFrom(QClipboard::Mode mode) {
        const QClipboard& clipboard = *QGuiApplication::clipboard();
        if (mode == QClipboard::Clipboard || clipboard.supportsSelection()) {
            enter(clipboard.text(mode));
        }
    }

    void enter(const QString& text) {
        const QString taken = isReadOnly() ? QString() : m_item->accept(text);
        if (!taken.isEmpty()) {
            insert(taken);
        }
    }

    LineEditItem* m_item = nullptr;
};

LineEditItem::LineEditItem(Dialog& dialog, const DialogTemplate::Item& source)
    : LineEditItem(dialog, source, *new Entry(&dialog.surface())) {}

LineEditItem::LineEditItem(Dialog& dialog, const DialogTemplate::Item& source, Entry& edit)
    : EditItem(dialog, source, edit), m_edit(edit) {
    edit.setItem(*this);
    edit.setMaxLength(std::numeric_limits<int>::max());
    edit.setReadOnly(hasStyle(editStyle::readOnly));
    edit.setEchoMode(hasStyle(editStyle::password) ? QLineEdit::Password : QLineEdit::Normal);
    edit.setAlignment(alignment() | Qt::AlignVCenter);
    showText(textOf(source.title));
    QObject::connect(&edit, &QLineEdit::textChanged, &edit, [this] { tellChanged(); });
}

void LineEditItem::showText(const QString& text) {
    if (text != m_edit.text()) { // an equal text leaves the cursor and the undo history alone
        m_edit.setText(text);
    }
}

void LineEditItem::setText(std::u16string_view text) {
    showText(QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size())));
}

void LineEditItem::selectText(std::int32_t start, std::int32_t end) {
    const int length = static_cast<int>(m_edit.text().size());
    const int last = end < 0 ? length : std::min(end, length);
    if (start < 0) {
        m_edit.deselect();
    } else {
        m_edit.setSelection(std::min(start, last), last - std::min(start, last));
    }
}

void LineEditItem::setTransparent() {
    m_edit.setFrame(false);
    QPalette palette = m_edit.palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    m_edit.setPalette(palette);
}

QString LineEditItem::accept(const QString& entered) const {
    const bool hasSelection = m_edit.hasSelectedText();
    const auto start =
        static_cast<std::size_t>(hasSelection ? m_edit.selectionStart() : m_edit.cursorPosition());
    const auto end = hasSelection ? static_cast<std::size_t>(m_edit.selectionEnd()) : start;
    return QString::fromStdU16String(
        rule().accept(getText(), start, end, entered.toStdU16String()));
}

} // namespace zent::platform::qt
