#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include <QButtonGroup>
#include <QDialog>
#include <QRect>
#include <QScrollArea>

#include "platform/Dialog.h"
#include "platform/DialogTemplate.h"
#include "platform/ResourceModule.h"
#include "platform/qt/DialogUnits.h"
#include "platform/qt/Item.h"
#include "platform/qt/ModalRun.h"
#include "platform/qt/Pictures.h"

namespace zent::platform::qt {

class ButtonItem;

/// A dialog and its items. What the user does goes to its procedure.
class Dialog final : public QDialog, public platform::Dialog {
public:
    /// Makes the window and its items, and shows nothing yet. Null for bytes that are no template,
    /// or with an item of an unknown class. The owner, if there is one, destroys the dialog with
    /// itself.
    static Dialog* create(std::span<const std::byte> bytes, const ResourceModule& resources,
                          QWidget* owner, DialogProcedure& procedure);
    /// The dialog of a handle; null if there is none, or it is gone.
    static Dialog* find(WindowHandle handle);

    ~Dialog() override;

    WindowHandle getHandle() override { return static_cast<QWidget*>(this); }

    /// Starts a created dialog and stays in it until it ends; destroys it.
    std::intptr_t runModal();
    /// Starts a created dialog and shows it.
    void startModeless();

    void end(std::intptr_t value) override;
    /// The object is destroyed once the event at hand is done.
    void destroy() override;
    std::intptr_t send(std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) override;
    void setCaption(std::u16string_view text) override;
    bool isVisible() const override { return QDialog::isVisible(); }
    Rectangle getWindowRectangle() const override;
    Rectangle getClientRectangle() const override;
    void moveTo(const Rectangle& place) override;
    Rectangle getWorkArea() const override;
    Rectangle mapDialogUnits(const Rectangle& units) const override;
    std::int32_t getDotsPerInch() const override { return logicalDpiY(); }
    std::uint16_t getFocusedItem() const override;
    std::vector<DialogItem*> getItems() const override;
    Item* findItem(std::uint16_t id) const override;

    // These report what the user did. A dialog that hasn't started, or has ended, doesn't pass it
    // on.
    void tellCommand(std::uint16_t item, std::uint32_t code);
    /// Reports an event and gives the message result.
    std::intptr_t tellNotification(const Notification& notification);
    void tellScroll(std::uint16_t item, int position);
    void tellDraw(const DrawRequest& request);
    void tellMouse(std::uint32_t message, std::uint16_t item, const QPoint& place);

    /// Gives the focus to the next item in the template that takes it by keyboard. Gives true, as
    /// an event handler does.
    bool focusBehind(const QWidget& widget);

    /// The widget that holds the items. It scrolls where the dialog doesn't fit the screen.
    QWidget& surface() { return m_surface; }
    /// The item of an id; null if there is none.
    const ButtonItem* defaultButton() const { return m_defaultButton; }
    void setDefaultButton(ButtonItem& button) { m_defaultButton = &button; }
    Pictures& pictures() { return m_pictures; }
    const DialogUnits& units() const { return m_units; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void reject() override;

private:
    enum class State { created, running, ended, gone };

    Dialog(const DialogTemplate& source, const ResourceModule& resources, QWidget* owner,
           DialogProcedure& procedure);
    bool addItems(const DialogTemplate& source);
    void groupRadioButtons();
    void connectNeighbours();
    void chooseDefault();
    void start();
    void focusFirst();
    void sendDestroy();
    std::intptr_t deliver(std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam);
    void noticeFocus(const QWidget* left, QWidget* now);
    Item* findItemOf(const QWidget* widget) const;
    void placeInTheMiddle();
    void setInnerSize(const QSize& size);
    void fitScreen();

    DialogProcedure& m_procedure;
    Pictures m_pictures;
    DialogUnits m_units;
    QScrollArea& m_area;
    QWidget& m_surface;
    std::vector<std::unique_ptr<Item>> m_items;
    ButtonItem* m_defaultButton = nullptr;
    std::vector<std::unique_ptr<QButtonGroup>> m_radioGroups;
    State m_state = State::created;
    ModalRun* m_run = nullptr; // null unless the dialog is modal
};

} // namespace zent::platform::qt
