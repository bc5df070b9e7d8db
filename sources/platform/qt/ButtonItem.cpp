#include "platform/qt/ButtonItem.h"

#include <QCheckBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionFocusRect>

#include "platform/qt/Dialog.h"

namespace zent::platform::qt {

namespace {

/// The kinds of buttons: the lowest four bits of the style.
enum Kind : std::uint32_t {
    defaultPush = 1,
    check = 2,
    autoCheck = 3,
    radio = 4,
    threeStates = 5,
    autoThreeStates = 6,
    autoRadio = 9,
    ownerDrawn = 11
};

std::uint32_t kindOf(std::uint32_t style) { return style & 0xF; }

/// A check box or radio button whose state only the program changes.
template <typename Button>
class ProgramsButton final : public Button {
public:
    using Button::Button;

protected:
    void nextCheckState() override {}
};

/// A button that the dialog's procedure draws.
class DrawnButton final : public QAbstractButton {
public:
    DrawnButton(Dialog& dialog, std::uint16_t id)
        : QAbstractButton(&dialog.surface()), m_dialog(dialog), m_id(id) {
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        constexpr std::uint32_t pressed = 1;
        constexpr std::uint32_t disabled = 4;
        QPainter painter(this);
        DrawRequest request;
        request.item = m_id;
        request.state = (isDown() ? pressed : 0) | (isEnabled() ? 0 : disabled);
        request.drawBitmap = [&](std::uint32_t bitmap) {
            painter.drawPixmap(0, 0, m_dialog.pictures().bitmap(bitmap));
        };
        m_dialog.tellDraw(request);
        if (hasFocus()) {
            QStyleOptionFocusRect option;
            option.initFrom(this);
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
        }
    }

private:
    Dialog& m_dialog;
    std::uint16_t m_id;
};

template <typename Button>
QAbstractButton& makeCheckable(Dialog& dialog, bool isAutomatic) {
    if (isAutomatic) {
        return *new Button(&dialog.surface());
    }
    return *new ProgramsButton<Button>(&dialog.surface());
}

QAbstractButton& makeButton(Dialog& dialog, const DialogTemplate::Item& source) {
    const std::uint32_t kind = kindOf(source.style);
    switch (kind) {
    case check:
    case autoCheck:
    case threeStates:
    case autoThreeStates:
        return makeCheckable<QCheckBox>(dialog, kind == autoCheck || kind == autoThreeStates);
    case radio:
    case autoRadio:
        return makeCheckable<QRadioButton>(dialog, kind == autoRadio);
    case ownerDrawn:
        return *new DrawnButton(dialog, source.id);
    default:
        return *new QPushButton(&dialog.surface());
    }
}

} // namespace

ButtonItem::ButtonItem(Dialog& dialog, const DialogTemplate::Item& source)
    : ButtonItem(dialog, source, makeButton(dialog, source)) {}

ButtonItem::ButtonItem(Dialog& dialog, const DialogTemplate::Item& source, QAbstractButton& button)
    : Item(dialog, source, button), m_button(button) {
    button.setText(textOf(source.title));
    // Only buttons of one group of the template belong together, whatever the toolkit would take
    // for a group.
    button.setAutoExclusive(false);
    if (kindOf(style()) == defaultPush) {
        makeDefault();
    }
    QObject::connect(&button, &QAbstractButton::clicked, &button,
                     [this] { this->dialog().tellCommand(getId(), notification::clicked); });
}

bool ButtonItem::isMarkedButton() const {
    constexpr std::uint32_t lowestBits = 7;
    return (style() & lowestBits) != 0;
}

void ButtonItem::setChecked(bool isChecked) {
    // An exclusive group would always keep exactly one button checked.
    QButtonGroup* const group = m_button.group();
    if (group != nullptr) {
        group->setExclusive(false);
    }
    m_button.setChecked(isChecked);
    if (group != nullptr) {
        group->setExclusive(true);
    }
}

/// Whether the button is the default one. The toolkit's own mark can't tell, since it moves with
/// the focus.
bool ButtonItem::isDefault() const { return dialog().defaultButton() == this; }

void ButtonItem::makeDefault() {
    if (auto* const push = qobject_cast<QPushButton*>(&m_button)) {
        push->setDefault(true);
        dialog().setDefaultButton(*this);
    }
}

bool ButtonItem::joinGroup(QButtonGroup& group) {
    if (kindOf(style()) != autoRadio) {
        return false;
    }
    group.addButton(&m_button);
    return true;
}

} // namespace zent::platform::qt
