// List views.

#include "platform/win32/Dialog.h"
#include "platform/win32/DialogItem.h"
#include "platform/win32/ResourceImages.h"
#include "platform/win32/WideText.h"
#include "platform/win32/Win32WindowSystem.h"

#include <commctrl.h>

namespace zent::platform::win32 {

namespace {

class ListView : public DialogItem {
public:
    ListView(WindowHandle dialog, std::uint16_t id)
        : DialogItem(dialog, id, {ItemKind::listView}) {}

    bool hasRow(std::int32_t row) const { return row >= 0 && row < send(LVM_GETITEMCOUNT); }

    int countColumns() const {
        return Header_GetItemCount(reinterpret_cast<HWND>(send(LVM_GETHEADER)));
    }

    void setView(DWORD view) const {
        const auto style = static_cast<DWORD>(GetWindowLongW(window(), GWL_STYLE));
        if ((style & LVS_TYPEMASK) != view) {
            const DWORD newStyle = (style & ~DWORD{LVS_TYPEMASK}) | view;
            SetWindowLongW(window(), GWL_STYLE, static_cast<LONG>(newStyle));
        }
    }

    /// Icons further apart on a fine screen, where their texts are taller.
    void spreadIcons() const {
        constexpr int coarseScreen = 96; // pixels an inch
        constexpr WORD onCoarse = 70;
        constexpr WORD onFine = 80;
        const int density = GetDeviceCaps(WindowSurface(window()).get(), LOGPIXELSY);
        const WORD across = LOWORD(send(LVM_GETITEMSPACING, FALSE));
        send(LVM_SETICONSPACING, 0, MAKELPARAM(across, density > coarseScreen ? onFine : onCoarse));
    }

    /// Adds an icon to the lists of the large and the small ones; gives its index.
    int addIcon(std::uint32_t icon) const {
        constexpr int noIcon = -2;
        if (icon == 0) {
            return noIcon;
        }
        const int small = addIcon(icon, LVSIL_SMALL, SM_CXSMICON, SM_CYSMICON);
        const int large = addIcon(icon, LVSIL_NORMAL, SM_CXICON, SM_CYICON);
        return large >= 0 && small == large ? large : noIcon;
    }

    void setState(std::int32_t row, UINT state, UINT mask) const {
        LVITEMW entry = {};
        entry.state = state;
        entry.stateMask = mask;
        send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), &entry);
    }

private:
    int addIcon(std::uint32_t icon, WPARAM which, int width, int height) const {
        const int cx = GetSystemMetrics(width);
        const int cy = GetSystemMetrics(height);
        auto* images = reinterpret_cast<HIMAGELIST>(send(LVM_GETIMAGELIST, which));
        if (images == nullptr) {
            images = ImageList_Create(cx, cy, ILC_COLOR32 | ILC_MASK, 1, 1); // the list view's
            send(LVM_SETIMAGELIST, which, images);
        }
        const OwnIcon image = createIcon(dialog().resources(), icon, cx, cy);
        return ImageList_ReplaceIcon(images, -1, image.get());
    }
};

/// The numbers of the pictures of a check mark, in their place in an item's state.
constexpr UINT withoutMark = 1U << 12U;
constexpr UINT withMark = 2U << 12U;

} // namespace

void Win32WindowSystem::setListViewStyle(WindowHandle dialog, std::uint16_t item,
                                         ListViewStyle style) {
    const ListView list(dialog, item);
    if (!list) {
        return;
    }
    constexpr DWORD extended = LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT;
    const Dialog::Silence silence(list.dialog());
    switch (style) {
    case ListViewStyle::icons:
        list.setView(LVS_ICON);
        list.send(LVM_SETEXTENDEDLISTVIEWSTYLE, extended, LPARAM{0});
        list.spreadIcons();
        break;
    case ListViewStyle::details:
    case ListViewStyle::checkedDetails:
        // Details of no column would show nothing.
        list.setView(list.countColumns() > 0 ? LVS_REPORT : LVS_LIST);
        list.send(LVM_SETEXTENDEDLISTVIEWSTYLE, extended,
                  style == ListViewStyle::details ? LPARAM{LVS_EX_FULLROWSELECT}
                                                  : LPARAM{extended});
        break;
    }
}

void Win32WindowSystem::addColumn(WindowHandle dialog, std::uint16_t item,
                                  std::u16string_view title, std::int32_t width) {
    const ListView list(dialog, item);
    if (!list) {
        return;
    }
    std::u16string text(title);
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    column.pszText = wide(text.data());
    column.cx = width;
    column.iSubItem = list.countColumns();
    list.send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(column.iSubItem), &column);
    if (list.hasStyle(LVS_LIST)) {
        list.setView(LVS_REPORT);
    }
}

std::int32_t Win32WindowSystem::addRow(WindowHandle dialog, std::uint16_t item,
                                       std::u16string_view text, std::uint32_t icon,
                                       std::uintptr_t value) {
    const ListView list(dialog, item);
    if (!list) {
        return -1;
    }
    std::u16string copy(text);
    LVITEMW entry = {};
    entry.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM;
    entry.iItem = static_cast<int>(list.send(LVM_GETITEMCOUNT));
    entry.pszText = wide(copy.data());
    entry.iImage = list.addIcon(icon);
    entry.lParam = static_cast<LPARAM>(value);
    return static_cast<std::int32_t>(list.send(LVM_INSERTITEMW, 0, &entry));
}

void Win32WindowSystem::setCell(WindowHandle dialog, std::uint16_t item, std::int32_t row,
                                std::int32_t column, std::u16string_view text) {
    const ListView list(dialog, item);
    if (!list.hasRow(row)) {
        return;
    }
    std::u16string copy(text);
    LVITEMW entry = {};
    entry.iSubItem = column;
    entry.pszText = wide(copy.data());
    list.send(LVM_SETITEMTEXTW, static_cast<WPARAM>(row), &entry);
}

std::u16string Win32WindowSystem::getCell(WindowHandle dialog, std::uint16_t item, std::int32_t row,
                                          std::int32_t column) {
    const ListView list(dialog, item);
    if (!list.hasRow(row)) {
        return {};
    }
    // The length isn't to be asked for: a text that fills the buffer may go on.
    std::u16string text(256, u'\0');
    LVITEMW entry = {};
    entry.iSubItem = column;
    while (true) {
        entry.pszText = wide(text.data());
        entry.cchTextMax = static_cast<int>(text.size());
        const auto length =
            static_cast<std::size_t>(list.send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), &entry));
        if (length + 1 < text.size()) {
            text.resize(length);
            return text;
        }
        text.resize(text.size() * 2);
    }
}

void Win32WindowSystem::removeRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
    const ListView list(dialog, item);
    if (list.hasRow(row)) {
        list.send(LVM_DELETEITEM, static_cast<WPARAM>(row));
    }
}

void Win32WindowSystem::clearRows(WindowHandle dialog, std::uint16_t item) {
    ListView(dialog, item).send(LVM_DELETEALLITEMS);
}

std::int32_t Win32WindowSystem::getRowCount(WindowHandle dialog, std::uint16_t item) {
    return static_cast<std::int32_t>(ListView(dialog, item).send(LVM_GETITEMCOUNT));
}

std::uintptr_t Win32WindowSystem::getRowValue(WindowHandle dialog, std::uint16_t item,
                                              std::int32_t row) {
    LVITEMW entry = {};
    entry.mask = LVIF_PARAM;
    entry.iItem = row;
    ListView(dialog, item).send(LVM_GETITEMW, 0, &entry);
    return static_cast<std::uintptr_t>(entry.lParam);
}

std::vector<std::int32_t> Win32WindowSystem::getSelectedRows(WindowHandle dialog,
                                                             std::uint16_t item) {
    const ListView list(dialog, item);
    std::vector<std::int32_t> rows;
    if (list) {
        const auto next = [&list](LRESULT row) {
            return list.send(LVM_GETNEXTITEM, static_cast<WPARAM>(row), LPARAM{LVNI_SELECTED});
        };
        for (LRESULT row = next(-1); row >= 0; row = next(row)) {
            rows.push_back(static_cast<std::int32_t>(row));
        }
    }
    return rows;
}

void Win32WindowSystem::selectRow(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
    constexpr std::int32_t allRows = -1;
    constexpr UINT selectedAndFocused = LVIS_SELECTED | LVIS_FOCUSED;
    const ListView list(dialog, item);
    list.setState(allRows, 0, LVIS_SELECTED);
    if (list.hasRow(row)) {
        list.setState(row, selectedAndFocused, selectedAndFocused);
        list.send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), LPARAM{FALSE});
    }
}

void Win32WindowSystem::setRowChecked(WindowHandle dialog, std::uint16_t item, std::int32_t row,
                                      bool isChecked) {
    const ListView list(dialog, item);
    if (list.hasRow(row)) {
        list.setState(row, isChecked ? withMark : withoutMark, LVIS_STATEIMAGEMASK);
    }
}

bool Win32WindowSystem::isRowChecked(WindowHandle dialog, std::uint16_t item, std::int32_t row) {
    const ListView list(dialog, item);
    return list.hasRow(row) && list.send(LVM_GETITEMSTATE, static_cast<WPARAM>(row),
                                         LPARAM{LVIS_STATEIMAGEMASK}) == LRESULT{withMark};
}

} // namespace zent::platform::win32
