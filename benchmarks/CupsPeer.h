#pragma once

#include <memory>
#include <string>

#include <cups/cups.h>

namespace zent::bench {

/// Options and attributes of a job, as libcups holds them.
class CupsPeer {
public:
    CupsPeer();
    CupsPeer(const CupsPeer&) = delete;
    CupsPeer& operator=(const CupsPeer&) = delete;
    ~CupsPeer();

    /// cupsAddOption replaces the option's value.
    void setOption(const std::string& name, const std::string& value);
    /// The value; null if there is none.
    const char* getOption(const std::string& name) const;

    /// ippAddString appends an attribute, whether or not there is one of that name.
    void addAttribute(const std::string& name, const std::string& value);
    void removeAllAttributes();
    /// Null if there is none.
    const char* getAttribute(const std::string& name) const;

private:
    struct Delete {
        void operator()(ipp_t* message) const { ippDelete(message); }
    };

    int m_optionCount = 0;
    cups_option_t* m_options = nullptr;
    std::unique_ptr<ipp_t, Delete> m_message;
};

} // namespace zent::bench
