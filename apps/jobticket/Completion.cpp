// Lists what the last word of a command line may become. The completion script for bash asks for
// it.

#include <algorithm>
#include <array>
#include <optional>

#include "Assignment.h"
#include "Command.h"
#include "Errors.h"
#include "MediaLibrary.h"
#include "Preferences.h"
#include "Printers.h"
#include "Text.h"
#include "TicketFile.h"
#include "Value.h"

namespace jobticket {

namespace {

/// The text that follows the name of a feature in an assignment.
std::string endingOf(const Feature& feature) {
    if (feature.getKind() != ValueKind::collection) {
        return "=";
    }
    return feature.takesSeveral() ? "[0]." : ".";
}

std::vector<std::string> completeFeature(std::string_view word) {
    const std::size_t dot = word.rfind('.');
    const std::string prefix(word.substr(0, dot == std::string_view::npos ? 0 : dot + 1));
    const std::string_view begin = word.substr(prefix.size());
    FeaturePath parents;
    if (dot != std::string_view::npos) {
        parents = parsePath(word.substr(0, dot));
    }
    std::vector<std::string> words;
    for (const Feature& feature : Feature::all()) {
        const bool fits = parents.empty() ? feature.standsInTicket()
                                          : parents.back().feature.isPageLevel() ||
                                                feature.isMemberOf(parents.back().feature);
        // Other collections aren't offered, since their features have names of their own.
        const bool isUseful = feature.getKind() != ValueKind::collection || feature.isPageLevel();
        if (fits && isUseful && feature.getName().starts_with(begin)) {
            words.push_back(prefix + feature.getName() + endingOf(feature));
        }
    }
    return words;
}

std::vector<std::string> completeValue(std::string_view word, std::size_t equals) {
    const Feature feature = parsePath(word.substr(0, equals)).back().feature;
    const std::size_t comma = feature.takesSeveral() ? word.rfind(',') : std::string_view::npos;
    const std::size_t start = comma == std::string_view::npos ? equals + 1 : comma + 1;
    std::vector<std::string> words;
    const auto add = [&](const std::string& text) {
        if (text.starts_with(word.substr(start))) {
            words.push_back(std::string(word.substr(0, start)) + text);
        }
    };
    for (const zent::FeatureValue& value : feature.getValues()) {
        add(toUtf8(value.getText()));
    }
    if (feature.getKind() == ValueKind::size) {
        for (const zent::StockSize& size : getNamedSizes()) {
            add(toUtf8(size.getSizeName()));
        }
    }
    return words;
}

using Words = std::vector<std::string>;

/// Completes an argument FEATURE=VALUE: the name by the features of the ticket, or of the
/// collection that is named before it; the value by those of the feature.
Words completeAssignment(std::string_view word) {
    try {
        const std::size_t equals = word.find('=');
        return equals == std::string_view::npos ? completeFeature(word)
                                                : completeValue(word, equals);
    } catch (const ProgramError&) {
        return {}; // a name that isn't known has no continuation
    }
}

/// The words of a line as the shell reads it; the last one is what is being typed, maybe empty.
Words split(std::string_view line) {
    Words words(1);
    char quote = 0;
    for (std::size_t index = 0; index < line.size(); ++index) {
        const char c = line[index];
        if (c == quote) {
            quote = 0;
        } else if (quote == 0 && (c == '"' || c == '\'')) {
            quote = c;
        } else if (quote == 0 && (c == ' ' || c == '\t')) {
            if (!words.back().empty()) {
                words.emplace_back();
            }
        } else if (c == '\\' && quote != '\'' && index + 1 < line.size()) {
            words.back() += line[++index];
        } else {
            words.back() += c;
        }
    }
    return words;
}

/// The place in a command line that is to be completed.
struct Place {
    Operand operand = Operand::none;
    std::string word;                 // typed so far
    const Command* command = nullptr; // null as long as none is given
    std::string group;                // the group that was given before
    bool isOption = false;            // the name of an option is being typed
};

const Option* findOption(const Command& command, const std::string& name) {
    const auto found = std::ranges::find_if(command.options, [&](const Option& option) {
        const std::string_view names = option.names;
        return !option.isArgument() &&
               (getLongestName(option) == name || names.substr(0, names.find(',')) == name);
    });
    return found == command.options.end() ? nullptr : &*found;
}

/// What the argument at a position, counted from 0, takes. One that may be repeated takes all that
/// follow, unless another argument comes after it.
Operand operandAt(const Command& command, std::size_t count) {
    const Option* last = nullptr;
    for (const Option& option : command.options) {
        if (!option.isArgument()) {
            continue;
        }
        last = &option;
        if (count == 0) {
            return option.operand;
        }
        --count;
    }
    return last != nullptr && last->takesSeveral() ? last->operand : Operand::none;
}

Place findPlace(Words words) {
    Place place;
    place.word = std::move(words.back());
    words.pop_back();
    const Option* waiting = nullptr; // the option whose value comes next
    std::size_t arguments = 0;
    // The first is the program's own name, which may be all that is typed.
    for (const std::string& word : std::span(words).subspan(words.empty() ? 0 : 1)) {
        if (waiting != nullptr) {
            waiting = nullptr;
        } else if (place.command == nullptr || place.command->run == nullptr) {
            place.command = findCommand((place.group.empty() ? "" : place.group + ' ') + word);
            place.group = place.command == nullptr ? word : place.command->name;
        } else if (word.size() > 1 && word.starts_with('-')) {
            const Option* const option = findOption(*place.command, word);
            waiting = option != nullptr && option->operand != Operand::none ? option : nullptr;
        } else {
            ++arguments;
        }
    }
    const bool isWhole = place.command != nullptr && place.command->run != nullptr;
    if (waiting != nullptr) {
        place.operand = waiting->operand;
    } else if (place.word.starts_with('-')) {
        place.isOption = true;
    } else {
        place.operand = isWhole ? operandAt(*place.command, arguments) : Operand::command;
    }
    return place;
}

Words listOptions(const Command* command) {
    Words names = {"--help"};
    if (command == nullptr) {
        names.emplace_back("--version");
        return names;
    }
    for (const Option& option : command->options) {
        if (!option.isArgument()) {
            names.push_back(getLongestName(option));
        }
    }
    return names;
}

Words listFeatures() {
    Words names;
    for (const Feature& feature : Feature::all()) {
        names.push_back(feature.getName());
    }
    return names;
}

Words listModels() {
    Words numbers;
    for (const Model& model : getModels()) {
        numbers.push_back(std::to_string(model.number));
    }
    return numbers;
}

Words listStocks() {
    Words names;
    MediaLibrary library({}, "");
    for (const zent::Stock* stock : library.getStocks(zent::StockType::user)) {
        names.push_back(toUtf8(stock->getKey().getText()));
    }
    return names;
}

Words listPreferences() {
    Words names;
    for (const WellKnownPreference& preference : getWellKnownPreferences()) {
        names.push_back(preference.name);
    }
    return names;
}

Words listCandidates(const Place& place) {
    switch (place.operand) {
    case Operand::command:
        return getCommandNames(place.group);
    case Operand::model:
        return listModels();
    case Operand::language:
        return {"ps", "pcl", "color-pcl"};
    case Operand::form:
        return {"xml", "stream", "model"};
    case Operand::preferenceType:
        return {"bool", "number", "text", "data"};
    case Operand::feature:
        return listFeatures();
    case Operand::stock:
        return listStocks();
    case Operand::preference:
        return listPreferences();
    case Operand::assignment:
    case Operand::path:
        return completeAssignment(place.word);
    default:
        return place.isOption ? listOptions(place.command) : Words();
    }
}

/// Escapes a text so that the shell takes it for one word.
std::string quoted(std::string_view word) {
    std::string text;
    for (const char c : word) {
        const bool isPlain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                             (c >= '0' && c <= '9') || static_cast<unsigned char>(c) >= 0x80U ||
                             std::string_view("-_=.,:/[]+@%").find(c) != std::string_view::npos;
        text += (isPlain ? "" : "\\") + std::string(1, c);
    }
    return text;
}

/// First a word that says what else is to be done: "files" and "folders" are the shell's own to
/// list, after "begun" more may follow. Then the candidates, a line each: of those the shell takes,
/// which splits words at "=", only what stands after that.
ExitStatus complete(const Options& options) {
    const Place place = findPlace(split(options.words.front()));
    const bool isBegun = place.operand == Operand::assignment || place.operand == Operand::path;
    std::string text = place.operand == Operand::file     ? "files\n"
                       : place.operand == Operand::folder ? "folders\n"
                       : isBegun                          ? "begun\n"
                                                          : "whole\n";
    const std::size_t start = place.word.find('=') + 1;
    for (std::string& candidate : listCandidates(place)) {
        if (place.operand == Operand::path && candidate.ends_with('=')) {
            candidate.pop_back();
        }
        if (candidate.starts_with(place.word)) {
            text +=
                (place.operand == Operand::stock ? quoted(candidate) : candidate).substr(start) +
                '\n';
        }
    }
    writeStandardOutput(text);
    return ExitStatus::success;
}

constexpr std::array options = {Option{.names = "LINE",
                                       .operand = Operand::text,
                                       .target = in<&Options::words>,
                                       .help = "The line, as far as it has been typed",
                                       .isRequired = true}};

} // namespace

const Command completeCommand = {.name = "complete",
                                 .help = "List what the last word of a line may become",
                                 .options = options,
                                 .run = complete,
                                 .isHidden = true};

} // namespace jobticket
