#pragma once

#include <compare>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "ocore/Text/FormatArgument.h"
#include "ocore/Text/StringBlock.h"

namespace zent {

namespace platform {
class ResourceModule;
}

/// The one text class of the library: 16-bit units, reference-counted, copy-on-write.
///
/// A string is one pointer to the first unit of a shared, zero-terminated block. Copies share the
/// block; an operation that changes text makes the block private first. Short blocks come from
/// pools, since the attribute and feature layers make and drop strings in great number. The empty
/// string is one block that is shared by all and never freed.
///
/// Counts are atomic, so strings that share a block may live on different threads; one object is
/// not safe against concurrent writers. Positions and lengths count 16-bit units; -1 stands for
/// "not found". Comparisons are exact, unit by unit. A failed allocation raises std::bad_alloc.
class CXString {
public:
    CXString() noexcept : m_text(emptyStringBlock.head.text()) {}
    /// Copies a terminated wide text; null gives the empty string.
    CXString(const char16_t* text);
    CXString(std::u16string_view text);
    /// Converts a terminated text from the ANSI code page (UTF-8 where the system has none); null
    /// gives the empty string.
    explicit CXString(const char* narrow);
    /// Converts `length` bytes from the ANSI code page.
    CXString(const char* narrow, std::size_t length);
    CXString(const CXString& other) : m_text(other.share()) {}
    CXString(CXString&& other) noexcept : m_text(other.m_text) {
        other.m_text = emptyStringBlock.head.text();
    }
    ~CXString() { release(); }

    CXString& operator=(const CXString& other);
    CXString& operator=(CXString&& other) noexcept {
        std::swap(m_text, other.m_text);
        return *this;
    }
    CXString& operator=(const char16_t* text);
    CXString& operator=(std::u16string_view text);
    CXString& operator=(const char* narrow);

    std::int32_t length() const noexcept { return block()->length; }
    bool isEmpty() const noexcept { return length() == 0; }
    void clear() noexcept;

    /// The terminated text; valid until the string changes or goes.
    const char16_t* c_str() const noexcept { return m_text; }
    std::u16string_view view() const noexcept {
        return {m_text, static_cast<std::size_t>(length())};
    }
    operator std::u16string_view() const noexcept { return view(); }

    /// The text in the ANSI code page; what it can't show becomes its replacement character.
    std::string toNarrow() const;

    CXString& operator+=(std::u16string_view text);
    CXString& operator+=(const CXString& text) { return *this += text.view(); }
    CXString& operator+=(const char16_t* text);
    CXString& operator+=(char16_t unit);

    /// The first or last `count` units; a count beyond the length gives all, one below zero none.
    CXString left(std::int32_t count) const;
    CXString right(std::int32_t count) const;
    /// `count` units from `start`: a start below zero counts as zero, a count past the end is cut.
    CXString mid(std::int32_t start, std::int32_t count) const;
    CXString mid(std::int32_t start) const;

    /// These give positions, or -1. A start beyond the length finds nothing; one below zero counts
    /// as zero.
    std::int32_t find(char16_t unit, std::int32_t start = 0) const noexcept;
    std::int32_t find(std::u16string_view text, std::int32_t start = 0) const noexcept;
    std::int32_t findLast(char16_t unit) const noexcept;

    /// These trim white space, one unit, or any unit in `set`.
    void trimLeft();
    void trimRight();
    void trimLeft(char16_t unit) { trimLeft(std::u16string_view(&unit, 1)); }
    void trimRight(char16_t unit) { trimRight(std::u16string_view(&unit, 1)); }
    void trimLeft(std::u16string_view set);
    void trimRight(std::u16string_view set);
    void trim();

    /// A private, writable buffer of at least `minimum` units and a terminator. Until
    /// releaseBuffer() sets the length, no other operation may be used.
    char16_t* getBuffer(std::int32_t minimum);
    /// Ends direct writing; -1 measures the terminated text. A length is cut to the buffer's.
    void releaseBuffer(std::int32_t newLength = -1);

    /// Formats in the manner of printf, on wide text. The arguments carry their types, so that a
    /// specifier that doesn't fit its argument can't read what isn't there: it is converted where
    /// that makes sense, and otherwise stands as written. "%s" takes wide text and "%S" narrow
    /// text, null counting as "(null)"; flags "#-+0 ", width and precision also by "*", size
    /// prefixes h, l, I64, F, L, N. "l" is 32 bits on every target: a wider number is cut. Width
    /// and precision are bounded by 65,535, and the whole text by 1,048,576 units; what goes
    /// beyond is left out.
    template <typename... Args>
    static CXString Format(const char16_t* format, const Args&... args);
    /// The same with the format taken from a string table.
    template <typename... Args>
    static CXString FormatResource(const platform::ResourceModule& module, std::uint32_t id,
                                   const Args&... args);

    /// Takes the text of a string table entry, whatever its length. True if it isn't empty.
    bool LoadString(const platform::ResourceModule& module, std::uint32_t id);

private:
    StringBlock* block() const noexcept { return StringBlock::of(m_text); }
    bool isWritable(std::size_t units) const noexcept;
    char16_t* share() const noexcept;
    void release() noexcept;
    void adopt(StringBlock* fresh) noexcept;
    void makePrivate(std::size_t capacity);
    void assign(std::u16string_view text);
    void assignNarrow(std::string_view narrow);

    static CXString formatWide(std::u16string_view format, FormatArguments arguments);
    static CXString formatResource(const platform::ResourceModule& module, std::uint32_t id,
                                   FormatArguments arguments);

    char16_t* m_text;
};

/// Takes a reference to the block. Those to the empty block aren't counted.
inline char16_t* CXString::share() const noexcept {
    std::atomic<std::int32_t>& count = block()->count;
    if (count.load(std::memory_order_relaxed) > 0) [[likely]] {
        count.fetch_add(1, std::memory_order_relaxed);
    }
    return m_text;
}

inline void CXString::release() noexcept {
    std::atomic<std::int32_t>& count = block()->count;
    const std::int32_t sharers = count.load(std::memory_order_acquire);
    if (sharers == 0) {
        return;
    }
    // A sole owner needn't count down: nobody else can reach the block any more.
    if (sharers == 1 || count.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        StringBlock::giveBack(block());
    }
}

inline bool operator==(const CXString& a, std::u16string_view b) noexcept {
    return a.view().size() == b.size() &&
           (b.empty() || std::memcmp(a.c_str(), b.data(), b.size() * sizeof(char16_t)) == 0);
}
inline bool operator==(const CXString& a, const CXString& b) noexcept {
    return a.c_str() == b.c_str() || a == b.view();
}
inline bool operator==(const CXString& a, const char16_t* b) noexcept {
    return a == (b ? std::u16string_view(b) : std::u16string_view());
}
/// Orders texts by their code units.
inline std::strong_ordering operator<=>(const CXString& a, const CXString& b) noexcept {
    return a.view() <=> b.view();
}

CXString operator+(const CXString& a, const CXString& b);
CXString operator+(const CXString& a, const char16_t* b);
CXString operator+(const char16_t* a, const CXString& b);
CXString operator+(const CXString& a, char16_t b);
CXString operator+(char16_t a, const CXString& b);

/// Formats a narrow, ASCII format. As everywhere, its "%s" takes wide text. This is what every
/// place that raises an exception uses for its message.
CXString formatText(std::string_view format, FormatArguments arguments);
template <typename... Args>
CXString formatText(const char* format, const Args&... args);

/// A copy of `source` with each `search` replaced. An empty `search`, or a `replacement` that
/// contains it, gives the source unchanged: that guard keeps the loop finite.
CXString replaceAll(const CXString& source, std::u16string_view search,
                    std::u16string_view replacement);

inline FormatArgument::FormatArgument(const CXString& text) : FormatArgument(text.view()) {}

template <typename... Args>
CXString CXString::Format(const char16_t* format, const Args&... args) {
    const FormatArgumentList<sizeof...(Args)> list{FormatArgument(args)...};
    return formatWide(format, list);
}
template <typename... Args>
CXString CXString::FormatResource(const platform::ResourceModule& module, std::uint32_t id,
                                  const Args&... args) {
    const FormatArgumentList<sizeof...(Args)> list{FormatArgument(args)...};
    return formatResource(module, id, list);
}
template <typename... Args>
CXString formatText(const char* format, const Args&... args) {
    const FormatArgumentList<sizeof...(Args)> list{FormatArgument(args)...};
    return formatText(std::string_view(format), FormatArguments(list));
}

} // namespace zent
