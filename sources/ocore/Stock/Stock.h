#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ocore/FeatureSettings/FeatureSettings.h"
#include "ocore/Stock/StockMatch.h"
#include "ocore/Stock/StockType.h"

namespace zent {

class Capabilities;
class ProblemReporter;

/// One kind of paper as a named thing. A ticket carries media by name ("media") or by description
/// ("media-col"); a stock is either of the two.
///
/// The key is the stock's name, a value of "media" or "media-key"; the unspecified value stands for
/// a stock without a name. The settings hold the stock as a ticket does: a stock by name has
/// "media", one by description has "media-col", in which its key does not stand.
///
/// The logical id is different for each stock for as long as the library is loaded; 0 is none. It
/// stands in the settings as well, as a private node, so that it travels with a ticket but is never
/// written to a document.
class Stock {
public:
    /// Makes a stock with a deep copy of the settings.
    Stock(std::uint32_t logicalID, FeatureValue key, StockType kind, StockSource source,
          const FeatureSettings& settings);
    Stock(const Stock& other) = default;
    Stock& operator=(const Stock& other) = default;
    Stock(Stock&& other) noexcept = default;
    Stock& operator=(Stock&& other) noexcept = default;
    virtual ~Stock() = default;

    /// The stock that one level of a ticket asks for, null if it asks for none. Where a level has
    /// both a name and a description, the description wins. Raises what FeatureSettings does for
    /// media that are neither.
    static std::unique_ptr<Stock> createFromSettings(const FeatureSettings& settings,
                                                     StockType kind);

    const FeatureValue& getKey() const { return m_key; }
    bool hasKey() const { return m_key.getValue() != FeatureValue::unspecified; }
    void setKey(FeatureValue key);
    /// A value that isn't known yet becomes one; empty text takes the key away.
    void setKeyFromText(const CXString& text);
    StockType getKind() const { return m_kind; }
    void setKind(StockType kind) { m_kind = kind; }
    /// Whether dialogs offer the stock in their short lists.
    bool isFavorite() const { return m_favorite; }
    void setFavorite(bool favorite) { m_favorite = favorite; }
    StockSource getSource() const { return m_source; }
    /// Changes whether the stock is known by name or by description. One that becomes known by name
    /// loses its description.
    void setSource(StockSource source);
    const FeatureSettings& getSettings() const { return m_settings; }
    FeatureSettings& getSettings() { return m_settings; }

    /// The key for users, with a word on whose stock it is. Raises UnknownCaseException for a kind
    /// that isn't known.
    CXString getDisplayString() const;

    std::uint32_t getLogicalID() const { return m_logicalID; }
    /// Draws an id that no stock has had.
    void assignNewLogicalID();
    void removeLogicalID() { setLogicalID(0); }
    void copyLogicalID(const Stock& other) { setLogicalID(other.m_logicalID); }
    /// 0 if there is none.
    static std::uint32_t getLogicalIDFromSettings(const FeatureSettings& settings);
    static void removeLogicalIDFromSettings(FeatureSettings& settings);

    /// Makes one level of a ticket ask for this stock and no other.
    void applyTo(FeatureSettings& target) const;
    /// The form in which a media library stores a stock: a description, with the key as its
    /// "media-key", for stocks of both sources.
    AttrNodeList getAttrNodeList() const;

    /// In what grade this stock and another are the same. Where both have a logical id, it alone
    /// decides.
    StockMatch match(const Stock& other) const;
    StockDifference compare(const Stock& other) const;
    bool isSameDescription(const Stock& other) const;
    /// A text that is the same for stocks of the same description and for no others, by which many
    /// of them can be kept in order.
    std::u16string getDescriptionText() const;

    /// Reports what the printer can't do of the stock, if there is anything, and repairs it by the
    /// printer's default settings; it is the ticket's own then. False if the reporter declines: the
    /// stock is left as it was.
    bool validate(const Capabilities& capabilities, const Settings& defaults,
                  const ProblemReporter& reporter);

    /// A hook for diagnosis, which does nothing.
    virtual void dump() const { m_settings.dump(); }

private:
    void setLogicalID(std::uint32_t logicalID);
    void keepSettingsToSource();

    std::uint32_t m_logicalID;
    FeatureValue m_key;
    StockType m_kind;
    bool m_favorite = false;
    StockSource m_source;
    FeatureSettings m_settings; // owning
};

} // namespace zent
