#pragma once

#include <cstdint>

namespace zent {

/// Hears of changes of the subjects that it is attached to.
class Observer {
public:
    virtual ~Observer() = default;
    virtual void handleSubjectUpdate(std::uint16_t subjectId) = 0;

protected:
    Observer() = default;
    Observer(const Observer&) = default;
    Observer& operator=(const Observer&) = default;
};

} // namespace zent
