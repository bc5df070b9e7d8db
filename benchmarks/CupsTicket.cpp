#include "CupsTicket.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

#include "ocore/Attributes/IppList.h"
#include "ocore/Attributes/PrimitiveInteger.h"

namespace zent::bench {

namespace {

constexpr ipp_tag_t group = IPP_TAG_JOB;

std::vector<const AttrValue*> membersOf(const AttrValue& value) {
    std::vector<const AttrValue*> members;
    const AttrNodeList& list = static_cast<const IppList&>(value).getAttrNodeList();
    for (std::uint32_t i = 0; i < list.getNumberOfNodes(); ++i) {
        members.push_back(&list.getNodeAt(i).getAttrValue());
    }
    return members;
}

ipp_tag_t tagOf(const AttrValue& value) {
    switch (value.getAttrValueType()) {
    case AVTE_INTEGER:
        return IPP_TAG_INTEGER;
    case AVTE_ENUM:
        return IPP_TAG_ENUM;
    case AVTE_NAME:
        return IPP_TAG_NAME;
    case AVTE_KEYWORD:
        return IPP_TAG_KEYWORD;
    case AVTE_TEXT:
        return IPP_TAG_TEXT;
    case AVTE_MIMEMEDIA:
        return IPP_TAG_MIMETYPE;
    case AVTE_URI:
        return IPP_TAG_URI;
    default:
        throw std::runtime_error("the ticket holds what libcups has no tag for");
    }
}

/// Adds attributes to a message, each of one value or a set of equal kind.
class Adder {
public:
    explicit Adder(ipp_t* message) : m_message(message) {}

    void addAll(const AttrNodeList& list) {
        for (std::uint32_t i = 0; i < list.getNumberOfNodes(); ++i) {
            const AttrNode& node = list.getNodeAt(i);
            const AttrValue& value = node.getAttrValue();
            m_name = node.getName().toNarrow();
            addValues(value.is1setOf() ? membersOf(value) : std::vector{&value});
        }
    }

private:
    using Values = std::vector<const AttrValue*>;

    void addValues(const Values& values) {
        const AttrValue& first = *values.at(0);
        if (first.isCollection()) {
            addCollections(values);
        } else if (first.isRangeOfInteger()) {
            addRanges(values);
        } else if (first.isResolution()) {
            addResolutions(values);
        } else if (first.isPrimitiveInteger()) {
            addNumbers(values);
        } else if (first.getAttrValueType() == AVTE_BOOLEAN) {
            ippAddBoolean(m_message, group, m_name.c_str(), first.getIppValue() == u"true" ? 1 : 0);
        } else {
            addTexts(values);
        }
    }

    void addCollections(const Values& values) {
        std::vector<Message> made;
        std::vector<const ipp_t*> collections;
        for (const AttrValue* const value : values) {
            collections.push_back(made.emplace_back(ippNew()).get());
            Adder(made.back().get()).addAll(static_cast<const IppList*>(value)->getAttrNodeList());
        }
        ippAddCollections(m_message, group, m_name.c_str(), static_cast<int>(values.size()),
                          collections.data());
    }

    void addRanges(const Values& values) {
        std::vector<int> lower(values.size());
        std::vector<int> upper(values.size());
        for (std::size_t i = 0; i < values.size(); ++i) {
            values[i]->getRangeOfIntegerValues(lower[i], upper[i]);
        }
        ippAddRanges(m_message, group, m_name.c_str(), static_cast<int>(values.size()),
                     lower.data(), upper.data());
    }

    void addResolutions(const Values& values) {
        std::vector<int> across(values.size());
        std::vector<int> along(values.size());
        int units = 0;
        for (std::size_t i = 0; i < values.size(); ++i) {
            values[i]->getResolutionValues(across[i], along[i], units);
        }
        ippAddResolutions(m_message, group, m_name.c_str(), static_cast<int>(values.size()),
                          static_cast<ipp_res_t>(units), across.data(), along.data());
    }

    void addNumbers(const Values& values) {
        std::vector<int> numbers;
        for (const AttrValue* const value : values) {
            numbers.push_back(static_cast<const PrimitiveInteger*>(value)->getValue());
        }
        ippAddIntegers(m_message, group, tagOf(*values[0]), m_name.c_str(),
                       static_cast<int>(numbers.size()), numbers.data());
    }

    void addTexts(const Values& values) {
        std::vector<std::string> texts;
        std::vector<const char*> pointers;
        for (const AttrValue* const value : values) {
            texts.push_back(value->getIppValue().toNarrow());
        }
        std::ranges::transform(texts, std::back_inserter(pointers), &std::string::c_str);
        ippAddStrings(m_message, group, tagOf(*values[0]), m_name.c_str(),
                      static_cast<int>(pointers.size()), nullptr, pointers.data());
    }

    ipp_t* m_message;
    std::string m_name;
};

ssize_t append(void* target, ipp_uchar_t* bytes, size_t count) {
    auto& written = *static_cast<std::vector<char>*>(target);
    written.insert(written.end(), bytes, bytes + count);
    return static_cast<ssize_t>(count);
}

ssize_t take(void* source, ipp_uchar_t* bytes, size_t count) {
    auto& left = *static_cast<std::string_view*>(source);
    const std::size_t taken = std::min(count, left.size());
    std::copy_n(left.begin(), taken, bytes);
    left.remove_prefix(taken);
    return static_cast<ssize_t>(taken);
}

void requireDone(ipp_state_t state) {
    if (state != IPP_STATE_DATA) {
        throw std::runtime_error("libcups doesn't read or write the message");
    }
}

} // namespace

CupsTicket::CupsTicket(const AttrNodeList& list) : m_message(ippNew()) {
    Adder(m_message.get()).addAll(list);
}

std::string_view CupsTicket::write() {
    m_written.clear();
    ippSetState(m_message.get(), IPP_STATE_IDLE);
    requireDone(ippWriteIO(&m_written, append, 1, nullptr, m_message.get()));
    return {m_written.data(), m_written.size()};
}

Message CupsTicket::read(std::string_view bytes) {
    Message message(ippNew());
    requireDone(ippReadIO(&bytes, take, 1, nullptr, message.get()));
    return message;
}

} // namespace zent::bench
