#include <optional>

#include "platform/win32/Dialog.h"
#include "platform/win32/Item.h"
#include "platform/win32/ResourceImages.h"
#include "platform/win32/WideText.h"

#include <commctrl.h>

namespace zent::platform::win32 {

namespace {

/// The row before the first, from which a search goes through all rows.
constexpr auto firstRow = static_cast<WPARAM>(-1);

class ListViewItem final : public Item, public RowsItem {
public:
    using Item::Item;

    void setStyle(Style style) override;
    Spacing getIconSpacing() const override;
    void setIconSpacing(const Spacing& spacing) override;
    void addColumn(std::u16string_view title, std::int32_t width) override;
    std::int32_t addRow(std::u16string_view text, std::uint32_t icon,
                        std::uintptr_t value) override;
    std::u16string getCell(std::int32_t row, std::int32_t column) const override;
    void setCell(std::int32_t row, std::int32_t column, std::u16string_view text) override;
    void removeRow(std::int32_t row) override;
    void clearRows() override { send(LVM_DELETEALLITEMS); }
    std::int32_t getRowCount() const override {
        return static_cast<std::int32_t>(send(LVM_GETITEMCOUNT));
    }
    std::uintptr_t getRowValue(std::int32_t row) const override;
    std::vector<std::int32_t> getSelectedRows() const override;
    void selectRow(std::int32_t row) override;
    std::int32_t getFocusedRow() const override {
        return isThere() ? static_cast<std::int32_t>(
                               send(LVM_GETNEXTITEM, firstRow, LPARAM{LVNI_FOCUSED}))
                         : -1;
    }
    void focusRow(std::int32_t row) override { setState(row, LVIS_FOCUSED, LVIS_FOCUSED); }
    void ensureRowVisible(std::int32_t row) override {
        send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), LPARAM{FALSE});
    }
    bool isRowChecked(std::int32_t row) const override;
    void setRowChecked(std::int32_t row, bool isChecked) override;

private:
    bool hasRow(std::int32_t row) const { return row >= 0 && row < getRowCount(); }

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

    int addIcon(std::uint32_t icon, WPARAM which, int width, int height) const {
        const int cx = GetSystemMetrics(width);
        const int cy = GetSystemMetrics(height);
        auto* images = reinterpret_cast<HIMAGELIST>(send(LVM_GETIMAGELIST, which));
        if (images == nullptr) {
            // The list view owns the list.
            images = ImageList_Create(cx, cy, ILC_COLOR32 | ILC_MASK, 1, 1);
            send(LVM_SETIMAGELIST, which, images);
        }
        const OwnIcon image = createIcon(dialog().resources(), icon, cx, cy);
        return ImageList_ReplaceIcon(images, -1, image.get());
    }

    std::optional<Spacing> m_spacing;
    bool m_isList = false; // true if its style is that of a list; details without columns are shown
                           // as a list too
};

/// The numbers of the pictures of a check mark, shifted to their bits in an item's state.
constexpr UINT withoutMark = 1U << 12U;
constexpr UINT withMark = 2U << 12U;

void ListViewItem::setStyle(Style style) {
    constexpr DWORD extended = LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT;
    const Dialog::Silence silence(dialog());
    m_isList = style == Style::list;
    switch (style) {
    case Style::icons:
        setView(LVS_ICON);
        send(LVM_SETEXTENDEDLISTVIEWSTYLE, extended, LPARAM{0});
        if (m_spacing) { // a change of the style has reset it
            setIconSpacing(*m_spacing);
        }
        break;
    case Style::list:
        setView(LVS_LIST);
        send(LVM_SETEXTENDEDLISTVIEWSTYLE, extended, LPARAM{0});
        break;
    case Style::details:
    case Style::checkedDetails:
        // Details without a column would show nothing.
        setView(countColumns() > 0 ? LVS_REPORT : LVS_LIST);
        send(LVM_SETEXTENDEDLISTVIEWSTYLE, extended,
             style == Style::details ? LPARAM{LVS_EX_FULLROWSELECT} : LPARAM{extended});
        break;
    }
}

RowsItem::Spacing ListViewItem::getIconSpacing() const {
    const auto spacing = static_cast<DWORD>(send(LVM_GETITEMSPACING, FALSE));
    return {LOWORD(spacing), HIWORD(spacing)};
}

void ListViewItem::setIconSpacing(const Spacing& spacing) {
    m_spacing = spacing;
    send(LVM_SETICONSPACING, 0, MAKELPARAM(spacing.across, spacing.down));
}

void ListViewItem::addColumn(std::u16string_view title, std::int32_t width) {
    std::u16string text(title);
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    column.pszText = wide(text.data());
    column.cx = width;
    column.iSubItem = countColumns();
    send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(column.iSubItem), &column);
    if (hasStyle(LVS_LIST) && !m_isList) {
        setView(LVS_REPORT);
    }
}

std::int32_t ListViewItem::addRow(std::u16string_view text, std::uint32_t icon,
                                  std::uintptr_t value) {
    std::u16string copy(text);
    LVITEMW entry = {};
    entry.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM;
    entry.iItem = static_cast<int>(send(LVM_GETITEMCOUNT));
    entry.pszText = wide(copy.data());
    entry.iImage = addIcon(icon);
    entry.lParam = static_cast<LPARAM>(value);
    return static_cast<std::int32_t>(send(LVM_INSERTITEMW, 0, &entry));
}

void ListViewItem::setCell(std::int32_t row, std::int32_t column, std::u16string_view text) {
    if (!hasRow(row)) {
        return;
    }
    std::u16string copy(text);
    LVITEMW entry = {};
    entry.iSubItem = column;
    entry.pszText = wide(copy.data());
    send(LVM_SETITEMTEXTW, static_cast<WPARAM>(row), &entry);
}

std::u16string ListViewItem::getCell(std::int32_t row, std::int32_t column) const {
    if (!hasRow(row)) {
        return {};
    }
    // The length can't be asked for, and a text that fills the buffer may be longer.
    std::u16string text(256, u'\0');
    LVITEMW entry = {};
    entry.iSubItem = column;
    while (true) {
        entry.pszText = wide(text.data());
        entry.cchTextMax = static_cast<int>(text.size());
        const auto length =
            static_cast<std::size_t>(send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), &entry));
        if (length + 1 < text.size()) {
            text.resize(length);
            return text;
        }
        text.resize(text.size() * 2);
    }
}

void ListViewItem::removeRow(std::int32_t row) {
    if (hasRow(row)) {
        send(LVM_DELETEITEM, static_cast<WPARAM>(row));
    }
}

std::uintptr_t ListViewItem::getRowValue(std::int32_t row) const {
    LVITEMW entry = {};
    entry.mask = LVIF_PARAM;
    entry.iItem = row;
    send(LVM_GETITEMW, 0, &entry);
    return static_cast<std::uintptr_t>(entry.lParam);
}

std::vector<std::int32_t> ListViewItem::getSelectedRows() const {
    std::vector<std::int32_t> rows;
    if (isThere()) {
        const auto next = [this](LRESULT row) {
            return send(LVM_GETNEXTITEM, static_cast<WPARAM>(row), LPARAM{LVNI_SELECTED});
        };
        for (LRESULT row = next(-1); row >= 0; row = next(row)) {
            rows.push_back(static_cast<std::int32_t>(row));
        }
    }
    return rows;
}

void ListViewItem::selectRow(std::int32_t row) {
    constexpr std::int32_t allRows = -1;
    constexpr UINT selectedAndFocused = LVIS_SELECTED | LVIS_FOCUSED;
    setState(allRows, 0, LVIS_SELECTED);
    if (hasRow(row)) {
        setState(row, selectedAndFocused, selectedAndFocused);
        ensureRowVisible(row);
    }
}

void ListViewItem::setRowChecked(std::int32_t row, bool isChecked) {
    if (hasRow(row)) {
        setState(row, isChecked ? withMark : withoutMark, LVIS_STATEIMAGEMASK);
    }
}

bool ListViewItem::isRowChecked(std::int32_t row) const {
    return hasRow(row) && send(LVM_GETITEMSTATE, static_cast<WPARAM>(row),
                               LPARAM{LVIS_STATEIMAGEMASK}) == LRESULT{withMark};
}

} // namespace

std::unique_ptr<Item> makeListView(Dialog& dialog, HWND window) {
    return std::make_unique<ListViewItem>(dialog, window);
}

} // namespace zent::platform::win32
