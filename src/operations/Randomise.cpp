#include "operations/Randomise.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/Application.h"
#include "core/Number.h"
#include "core/Text.h"
#include "mainwindow/PlanChange.h"

namespace orlo {
namespace {

std::int64_t Draw(const NumberRange& range, RandomSource& random) {
    const double width = static_cast<double>(range.end) - range.start;
    return static_cast<std::int64_t>(RoundHalfEven(width * random.Next() + range.start));
}

// The flight numbers of the legs of one flight.
class LegNumbers {
  public:
    LegNumbers(const NumberRange& range, bool inPairs, RandomSource& random)
        : range_(range), inPairs_(inPairs), random_(random) {}

    std::int64_t Next() {
        if (!inPairs_) return Draw(range_, random_);
        second_ = !second_;
        if (!second_) return number_ + 1;
        do {
            number_ = Draw(range_, random_);
        } while (number_ % 2 != 0);
        return number_;
    }

  private:
    const NumberRange& range_;
    bool inPairs_;
    RandomSource& random_;
    bool second_ = false;  // of a pair is next
    std::int64_t number_ = 0;
};

// What a command asks for, in the user's words.
struct RangeQuestions {
    std::string_view title;
    std::string_view startPrompt;
    std::string_view startText;
    std::string_view endPrompt;
    std::string_view endText;
    std::int32_t least;
    std::int32_t most;
    std::string_view outside;     // said of a number that isn't from least to most
    std::string_view notGreater;  // said of an end that isn't greater than the start
};

constexpr RangeQuestions kPercentQuestions = {"Random AI percentage",
                                              "Please enter the start percentage:",
                                              "1",
                                              "Please enter the end percentage:",
                                              "99",
                                              1,
                                              99,
                                              "Invalid value entered (1-99 allowed).",
                                              "The start percentage has to be less than the end value."};
constexpr RangeQuestions kNumberQuestions = {"Random Flight Number",
                                             "Please enter the start number:",
                                             "1",
                                             "Please enter the end number:",
                                             "999",
                                             0,
                                             INT32_MAX,
                                             "Invalid value entered.",
                                             "The start number has to be less than the end number."};

// Asks until the answer passes; `fault` gives what to say of an answer, empty where it passes.
std::optional<std::int32_t> AskForNumber(Context& context, const InputQuestion& question,
                                         const std::function<std::string_view(std::int32_t)>& fault) {
    for (;;) {
        const auto number = ParseWholeNumber(context.services.windows.InputBox(question).value_or(""));
        if (!number) return std::nullopt;
        const std::string_view reason = fault(*number);
        if (reason.empty()) return number;
        ShowMessage(context.services.messages, reason, kMarkExclamation, &context.forms.frmMain);
    }
}

std::optional<NumberRange> AskForRange(Context& context, const RangeQuestions& questions) {
    const auto outside = [&](std::int32_t number) {
        const bool inside = number >= questions.least && number <= questions.most;
        return inside ? std::string_view() : questions.outside;
    };
    const auto question = [&](std::string_view prompt, std::string_view text) {
        return InputQuestion{std::string(prompt), std::string(questions.title), std::string(text)};
    };
    const auto start = AskForNumber(context, question(questions.startPrompt, questions.startText), outside);
    if (!start) return std::nullopt;
    const auto endFault = [&](std::int32_t number) {
        const std::string_view reason = outside(number);
        return reason.empty() && number <= *start ? questions.notGreater : reason;
    };
    const auto end = AskForNumber(context, question(questions.endPrompt, questions.endText), endFault);
    if (!end) return std::nullopt;
    return NumberRange{*start, *end};
}

void ChangeAtRandom(Context& context, const std::function<void(Plan&, RandomSource&)>& work,
                    std::string_view done) {
    PlanChange change;
    change.work = [&](BusyForm&) {
        work(context.session.plan, context.services.random);
        return std::string(done);
    };
    context.services.random.SeedFromClock();
    ChangePlan(context, context.forms.frmMain, change);
}

}  // namespace

void RandomizePercent(Plan& plan, const NumberRange& range, RandomSource& random) {
    std::string percent;
    plan.Flights.Rewrite([&](std::int32_t, const FlightView& flight, LentFlight& changed) {
        percent = Concat(Draw(range, random), "%");
        changed = flight;
        changed.Percent = percent;
        return true;
    });
}

void RandomizeFlightNumbers(Plan& plan, const NumberRange& range, bool inPairs, RandomSource& random) {
    std::vector<std::string> texts;
    plan.Flights.Rewrite([&](std::int32_t, const FlightView& flight, LentFlight& changed) {
        changed = flight;
        if (texts.size() < changed.Legs.size()) texts.resize(changed.Legs.size());
        LegNumbers numbers(range, inPairs, random);
        for (std::size_t leg = 0; leg < changed.Legs.size(); ++leg) {
            texts[leg] = FormatDigits(numbers.Next(), 4);
            changed.Legs[leg].FlightNumber = texts[leg];
        }
        return true;
    });
}

void RandomizePlanOrder(Plan& plan, RandomSource& random) {
    const NumberRange all{0, plan.FlightCount() - 1};
    std::vector<bool> drawn(static_cast<std::size_t>(plan.FlightCount()));
    std::vector<std::int32_t> order;
    order.reserve(drawn.size());
    while (order.size() < drawn.size()) {
        const auto flight = static_cast<std::size_t>(Draw(all, random));
        if (drawn[flight]) continue;
        drawn[flight] = true;
        order.push_back(static_cast<std::int32_t>(flight));
    }
    plan.Flights = plan.Flights.Selection(order);
}

void OnRandomizePercent(Context& context) {
    const auto range = AskForRange(context, kPercentQuestions);
    if (!range) return;
    ChangeAtRandom(
        context, [&](Plan& plan, RandomSource& random) { RandomizePercent(plan, *range, random); },
        "Successfully randomized the AI percentage.");
}

void OnRandomizeFlightNumbers(Context& context) {
    const auto range = AskForRange(context, kNumberQuestions);
    if (!range) return;
    const bool inPairs = UserAgrees(
        context.services.messages, "Do you want to use odd and even Flight Numbers?", &context.forms.frmMain);
    ChangeAtRandom(
        context,
        [&](Plan& plan, RandomSource& random) { RandomizeFlightNumbers(plan, *range, inPairs, random); },
        "Successfully randomized the Flight Numbers.");
}

void OnRandomizePlanOrder(Context& context) {
    ChangeAtRandom(context, RandomizePlanOrder, "Successfully randomized the Flight Plan order.");
}

}  // namespace orlo
