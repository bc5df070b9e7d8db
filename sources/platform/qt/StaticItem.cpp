#include "platform/qt/StaticItem.h"

#include <optional>

#include <QMouseEvent>

#include "platform/qt/Dialog.h"
#include "platform/qt/Pictures.h"

namespace zent::platform::qt {

namespace {

constexpr std::uint32_t noMnemonic = 0x80;

/// The kinds of static items: the lowest five bits of the style.
enum Kind : std::uint32_t {
    left = 0,
    center = 1,
    right = 2,
    icon = 3,
    bitmap = 14,
    horizontalLine = 16,
    verticalLine = 17,
    frame = 18
};

std::uint32_t kindOf(std::uint32_t style) { return style & 0x1F; }

} // namespace

/// A label whose mnemonic leads to the first item after it that can have the focus.
class StaticItem::Label final : public QLabel {
public:
    explicit Label(Dialog& dialog) : QLabel(&dialog.surface()), m_dialog(dialog) {
        setBuddy(&dialog); // without a buddy it wouldn't underline the mnemonic
    }

    void watchMouse(std::uint16_t item) {
        m_watchedItem = item;
        setMouseTracking(true);
    }

protected:
    bool event(QEvent* event) override {
        return event->type() == QEvent::Shortcut ? m_dialog.focusBehind(*this)
                                                 : QLabel::event(event);
    }

    void mouseMoveEvent(QMouseEvent* event) override {
        QLabel::mouseMoveEvent(event);
        if (m_watchedItem) {
            m_dialog.tellMouse(platform::event::mouseMoved, *m_watchedItem,
                               event->position().toPoint());
        }
    }

    void mousePressEvent(QMouseEvent* event) override {
        QLabel::mousePressEvent(event);
        if (m_watchedItem && event->button() == Qt::LeftButton) {
            m_dialog.tellMouse(platform::event::mousePressed, *m_watchedItem,
                               event->position().toPoint());
        }
    }

private:
    Dialog& m_dialog;
    std::optional<std::uint16_t> m_watchedItem;
};

StaticItem::StaticItem(Dialog& dialog, const DialogTemplate::Item& source, Pictures& pictures)
    : StaticItem(dialog, source, pictures, *new Label(dialog)) {}

StaticItem::StaticItem(Dialog& dialog, const DialogTemplate::Item& source, Pictures& pictures,
                       Label& label)
    : Item(dialog, source, label), m_label(label), m_pictures(pictures) {
    label.setTextFormat(Qt::PlainText);
    switch (kindOf(style())) {
    case icon:
    case bitmap:
        showTemplatesPicture(source.title);
        break;
    case horizontalLine:
    case verticalLine:
    case frame:
        drawAsLine();
        break;
    default:
        alignText();
        showText(textOf(source.title));
        break;
    }
}

void StaticItem::showText(const QString& text) {
    m_text = text;
    m_label.setText(hasStyle(noMnemonic) ? QString(text).replace(u'&', QLatin1String("&&")) : text);
}

void StaticItem::setBitmap(std::uint32_t bitmap, bool /*clearsGround*/) {
    m_label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_label.setPixmap(bitmap == 0 ? QPixmap() : m_pictures.bitmap(bitmap));
}

void StaticItem::watchMouse() { m_label.watchMouse(getId()); }

void StaticItem::setBuddy(QWidget& widget) { m_label.setBuddy(&widget); }

void StaticItem::showTemplatesPicture(const DialogTemplate::Name& title) {
    const auto* const number = std::get_if<std::uint16_t>(&title);
    if (number == nullptr) {
        return;
    }
    if (kindOf(style()) == bitmap) {
        setBitmap(*number, true);
        return;
    }
    constexpr int side = 32;
    m_label.setPixmap(m_pictures.icon(*number).pixmap(side, side));
    m_label.adjustSize();
}

void StaticItem::alignText() {
    constexpr std::uint32_t centeredDown = 0x200;
    const std::uint32_t kind = kindOf(style());
    const Qt::Alignment across = kind == center  ? Qt::AlignHCenter
                                 : kind == right ? Qt::AlignRight
                                                 : Qt::AlignLeft;
    m_label.setAlignment(across | (hasStyle(centeredDown) ? Qt::AlignVCenter : Qt::AlignTop));
    m_label.setWordWrap(kind <= right && !hasStyle(centeredDown));
}

void StaticItem::drawAsLine() {
    const std::uint32_t kind = kindOf(style());
    m_label.setFrameShape(kind == horizontalLine ? QFrame::HLine
                          : kind == verticalLine ? QFrame::VLine
                                                 : QFrame::StyledPanel);
    m_label.setFrameShadow(QFrame::Sunken);
    m_label.setAttribute(Qt::WA_TransparentForMouseEvents);
    m_label.lower();
}

} // namespace zent::platform::qt
