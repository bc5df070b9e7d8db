#include "TicketEditor.h"

#include "ExitStatus.h"

namespace jobticket {

namespace {

std::uint32_t indexOf(const PathStep& step) { return step.index.value_or(0); }

/// Walks down a path, as far as `enter` allows, runs a change on what holds its last feature, and
/// stores on the way back what was made of each part.
template <typename Enter, typename Change>
void editAt(Ticket& ticket, std::span<const PathStep> path, const Enter& enter,
            const Change& change) {
    const PathStep& step = path.front();
    if (!enter(ticket, step)) {
        return;
    }
    if (path.size() == 1) {
        change(ticket, step);
        return;
    }
    const std::span<const PathStep> rest = path.subspan(1);
    const std::uint32_t index = indexOf(step);
    if (step.feature.isPageLevel()) {
        Ticket nested = ticket.copyNested(step.feature, index);
        editAt(nested, rest, enter, change);
        ticket.setNested(step.feature, index, nested);
    } else if (index == 0) {
        editAt(ticket, rest, enter, change); // features lie in the first member by themselves
    } else {
        // In a ticket that has no other member, it is the first.
        Ticket alone = ticket.createEmpty();
        alone.setNested(step.feature, 0, ticket.copyNested(step.feature, index));
        editAt(alone, rest, enter, change);
        ticket.setNested(step.feature, index, alone.copyNested(step.feature, 0));
    }
}

/// Removes the values from an index on.
void removeFrom(Ticket& ticket, const Feature& feature, std::uint32_t first) {
    for (std::uint32_t count = ticket.count(feature); count > first; --count) {
        ticket.remove(feature, first);
    }
}

} // namespace

void setValues(Ticket& ticket, std::span<const PathStep> path, const std::vector<Value>& values) {
    // Sets have no gaps: a value takes the place of another, or comes behind the last.
    const auto checkNoGap = [](const Ticket& holder, const PathStep& step) {
        const std::uint32_t count = holder.count(step.feature);
        if (indexOf(step) > count) {
            throw ProgramError(ExitStatus::badValue,
                               toText(step) + ": there are " + std::to_string(count) +
                                   " so far, so the next is [" + std::to_string(count) + "]");
        }
        return true;
    };
    editAt(ticket, path, checkNoGap, [&values](Ticket& holder, const PathStep& step) {
        std::uint32_t index = indexOf(step);
        for (const Value& value : values) {
            holder.set(step.feature, index++, value);
        }
        if (!step.index) {
            removeFrom(holder, step.feature, index);
        }
    });
}

void removeValues(Ticket& ticket, std::span<const PathStep> path) {
    const auto isThere = [](const Ticket& holder, const PathStep& step) {
        return holder.count(step.feature) > indexOf(step);
    };
    editAt(ticket, path, isThere, [](Ticket& holder, const PathStep& step) {
        if (step.index) {
            holder.remove(step.feature, *step.index);
        } else {
            removeFrom(holder, step.feature, 0);
        }
    });
}

} // namespace jobticket
