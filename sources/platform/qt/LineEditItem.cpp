#include "platform/qt/LineEditItem.h"

#include <algorithm>
#include <limits>

#include <QScopedValueRollback>
#include <QValidator>

#include "platform/qt/Dialog.h"
#include "platform/qt/EditStyle.h"

namespace zent::platform::qt {

namespace {

/// How many characters two texts begin with alike.
qsizetype commonStart(QStringView a, QStringView b) {
    return std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
}

} // namespace

/// Sees each change of the text, however it is entered, and takes out what the rule refuses.
class LineEditItem::Entry final : public QValidator {
public:
    explicit Entry(LineEditItem& item) : QValidator(&item.m_edit), m_item(item) {}

    State validate(QString& text, int& cursor) const override {
        if (m_item.m_isProgramsChange) {
            return Acceptable;
        }
        // The cursor stands behind what was entered; what was selected before it is gone.
        const QString& before = m_item.m_before;
        const QStringView rest = QStringView(text).mid(cursor);
        if (!before.endsWith(rest)) {
            return Acceptable; // nothing was entered: an undone change
        }
        const qsizetype end = before.size() - rest.size();
        const qsizetype start =
            commonStart(QStringView(before).left(end), QStringView(text).left(cursor));
        const QStringView entered = QStringView(text).mid(start, cursor - start);
        const std::u16string taken =
            m_item.rule().accept(view(before), static_cast<std::size_t>(start),
                                 static_cast<std::size_t>(end), view(entered));
        if (taken.size() == static_cast<std::size_t>(entered.size())) {
            return Acceptable;
        }
        if (taken.empty()) {
            return Invalid;
        }
        text = before.left(start) + QString::fromStdU16String(taken) + before.mid(end);
        cursor = static_cast<int>(start) + static_cast<int>(taken.size());
        return Acceptable;
    }

private:
    static std::u16string_view view(QStringView text) {
        return {text.utf16(), static_cast<std::size_t>(text.size())};
    }

    LineEditItem& m_item;
};

LineEditItem::LineEditItem(Dialog& dialog, const DialogTemplate::Item& source)
    : LineEditItem(dialog, source, *new QLineEdit(&dialog)) {}

LineEditItem::LineEditItem(Dialog& dialog, const DialogTemplate::Item& source, QLineEdit& edit)
    : EditItem(dialog, source, edit), m_edit(edit) {
    edit.setMaxLength(std::numeric_limits<int>::max());
    edit.setReadOnly(hasStyle(editStyle::readOnly));
    edit.setEchoMode(hasStyle(editStyle::password) ? QLineEdit::Password : QLineEdit::Normal);
    edit.setAlignment(alignment() | Qt::AlignVCenter);
    edit.setValidator(new Entry(*this));
    setText(textOf(source.title));
    QObject::connect(&edit, &QLineEdit::textChanged, &edit, [this](const QString& text) {
        m_before = text;
        tellChanged();
    });
}

void LineEditItem::setText(const QString& text) {
    if (text != m_edit.text()) { // else the cursor and what can be undone stay
        const QScopedValueRollback guard(m_isProgramsChange, true);
        m_before = text;
        m_edit.setText(text);
    }
}

void LineEditItem::select(std::int32_t start, std::int32_t end) {
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

} // namespace zent::platform::qt
