#include "platform/qt/TextEditItem.h"

#include <QFrame>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>

#include "platform/qt/Dialog.h"
#include "platform/qt/EditStyle.h"
#include "platform/qt/Text.h"
#include "platform/qt/Typing.h"

namespace zent::platform::qt {

namespace {

bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Converts a position in the port's text to one in Qt's, whose line ends are one character.
int placeOf(std::u16string_view text, std::int32_t position) {
    const auto end = std::min(static_cast<std::size_t>(position), text.size());
    return static_cast<int>(end) -
           static_cast<int>(
               std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end), u'\r'));
}

} // namespace

/// Offers what is entered to the item's rule.
class TextEditItem::Pane final : public QPlainTextEdit {
public:
    explicit Pane(QWidget* parent) : QPlainTextEdit(parent) {}
    void setItem(TextEditItem& item) { m_item = &item; }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool insistsOnLine = (event->modifiers() & Qt::ControlModifier) != 0;
        if (isEnter(*event) && !m_item->hasStyle(editStyle::takesEnter) && !insistsOnLine) {
            event->ignore(); // so that the dialog's default button gets it
            return;
        }
        const QString typed = isReadOnly()      ? QString()
                              : isEnter(*event) ? QStringLiteral("\n")
                                                : typedBy(*event);
        if (typed.isEmpty()) {
            QPlainTextEdit::keyPressEvent(event);
        } else {
            enter(typed);
        }
    }

    void inputMethodEvent(QInputMethodEvent* event) override {
        if (!event->commitString().isEmpty()) {
            event->setCommitString(m_item->accept(event->commitString()), event->replacementStart(),
                                   event->replacementLength());
        }
        QPlainTextEdit::inputMethodEvent(event);
    }

    bool canInsertFromMimeData(const QMimeData* source) const override { return source->hasText(); }
    void insertFromMimeData(const QMimeData* source) override { enter(source->text()); }

private:
    void enter(const QString& text) {
        const QString taken = m_item->accept(text);
        if (!taken.isEmpty()) {
            textCursor().insertText(taken);
            ensureCursorVisible();
        }
    }

    TextEditItem* m_item = nullptr;
};

TextEditItem::TextEditItem(Dialog& dialog, const DialogTemplate::Item& source)
    : TextEditItem(dialog, source, *new Pane(&dialog.surface())) {}

TextEditItem::TextEditItem(Dialog& dialog, const DialogTemplate::Item& source, QPlainTextEdit& edit)
    : EditItem(dialog, source, edit), m_edit(edit) {
    static_cast<Pane&>(edit).setItem(*this);
    edit.setTabChangesFocus(true);
    edit.setReadOnly(hasStyle(editStyle::readOnly));
    constexpr Rectangle tabStop{0, 0, 32, 0}; // in dialog units
    edit.setTabStopDistance(dialog.units().toPixels(tabStop).right);
    edit.setLineWrapMode(hasStyle(editStyle::scrollsAcross) ? QPlainTextEdit::NoWrap
                                                            : QPlainTextEdit::WidgetWidth);
    QTextOption option = edit.document()->defaultTextOption();
    option.setAlignment(alignment());
    edit.document()->setDefaultTextOption(option);
    showText(textOf(source.title));
    QObject::connect(&edit, &QPlainTextEdit::textChanged, &edit, [this] { noticeChange(); });
}

void TextEditItem::showText(const QString& text) {
    if (text != m_lastText) { // an equal text leaves the cursor and the undo history alone
        m_edit.setPlainText(text);
        m_lastText = m_edit.toPlainText();
    }
}

void TextEditItem::selectText(std::int32_t start, std::int32_t end) {
    const std::u16string text = fromQt(m_edit.toPlainText());
    QTextCursor cursor = m_edit.textCursor();
    if (start < 0) {
        cursor.clearSelection();
    } else {
        const auto length = static_cast<std::int32_t>(text.size());
        cursor.setPosition(placeOf(text, start));
        cursor.setPosition(placeOf(text, end < 0 ? length : end), QTextCursor::KeepAnchor);
    }
    m_edit.setTextCursor(cursor);
}

void TextEditItem::setTransparent() {
    m_edit.setFrameShape(QFrame::NoFrame);
    m_edit.viewport()->setAutoFillBackground(false);
}

QString TextEditItem::accept(const QString& entered) const {
    const QString text = m_edit.toPlainText();
    const QTextCursor cursor = m_edit.textCursor();
    const auto place = [&](int position) { return fromQt(text.left(position)).size(); };
    return toQt(rule().accept(fromQt(text), place(cursor.selectionStart()),
                              place(cursor.selectionEnd()), entered.toStdU16String()));
}

/// Reports a change of the text. Qt also reports changes of its look, which don't count.
void TextEditItem::noticeChange() {
    QString text = m_edit.toPlainText();
    if (text != m_lastText) {
        m_lastText = std::move(text);
        tellChanged();
    }
}

} // namespace zent::platform::qt
