#pragma once

#include <span>
#include <vector>

#include "ocore/Resources/ResourceData.h"
#include "ocore/Resources/ResourceLibrary.h"

namespace zent {

/// One item of a dialog template with its padding to a multiple of four bytes.
using DialogItemBytes = std::vector<std::byte>;

/// A dialog template that can take in the items of others: the dialog with several pages is put
/// together from one template for the window and one for each page.
///
/// While no item is split off, the bytes of the base are the template as it was loaded; after that,
/// they are its header alone. The header counts all items in both cases.
class DialogResource : public ResourceData {
public:
    /// The header counts the items in 16 bits.
    static constexpr std::uint32_t maximumItems = 65535;

    DialogResource() : DialogResource(0, false) {}
    /// Nothing is loaded yet. `hideItems` makes all items invisible, whatever the template says.
    DialogResource(std::uint32_t id, bool hideItems);
    DialogResource(const DialogResource& other);
    DialogResource& operator=(const DialogResource& other);
    ~DialogResource() override = default;

    std::size_t getSize() const override;
    /// The whole template in one piece, valid until the next call. Raises
    /// ResourceAcquisitionException if nothing is loaded.
    const std::byte* getResourceData() const override;
    std::span<const std::byte> getTemplate() const { return {getResourceData(), getSize()}; }

    /// Takes the template of the number that is set, in the place of an earlier one, and splits its
    /// items off. Raises ResourceAcquisitionException, with nothing changed, also for a broken
    /// template.
    virtual void load(const ResourceLibrary& library);
    /// The same with the bytes of a template.
    void load(std::span<const std::byte> bytes);
    /// Forgets the items, and says what load() is to take. The bytes stay until then.
    virtual void setResource(std::uint32_t id, bool hideItems);

    /// Appends the other's items, which are split off there, to these; the other's header is
    /// dropped. With nothing loaded here, this takes over the other's template as it stands, and
    /// doesn't hide items from then on. Raises ExceededNumberOfDlgItems, with nothing changed, if
    /// that would be too many.
    DialogResource& operator+(DialogResource& other);

    std::uint32_t getItemCount() const { return static_cast<std::uint32_t>(m_items.size()); }
    const std::vector<DialogItemBytes>& getItems() const { return m_items; }
    bool hidesItems() const { return m_hideItems; }

private:
    void splitItems(std::span<const std::byte> bytes);
    void takeOver(const DialogResource& other);
    std::uint16_t getCountInHeader() const;
    void setCountInHeader(std::uint32_t count);

    mutable ByteBuffer m_assembled;
    std::vector<DialogItemBytes> m_items;
    bool m_hideItems = false;
};

} // namespace zent
