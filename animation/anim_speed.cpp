#include "animation/anim_speed.h"

#include "document/number_text.h"

#include <array>
#include <cmath>

namespace zeltrona::animation {

namespace {

constexpr std::array kIntervals{120, 80, 50, 20, 10, 9, 7, 5, 2};
constexpr double kSlowest = 1.0;
constexpr double kFastest = 9.0;

bool isSpeed(double value) {
    return value >= kSlowest && value <= kFastest;
}

std::string numberText(double value) {
    return document::singleText(static_cast<float>(value));
}

} // namespace

int animIntervalOf(std::string_view speedText) {
    const bool digit = speedText.size() == 1 && speedText[0] >= '1' && speedText[0] <= '9';
    return digit ? kIntervals.at(static_cast<std::size_t>(speedText[0] - '1')) : 0;
}

std::string keptSpeedText(std::string_view text) {
    const auto value = document::numericField(text);
    return std::string(value && isSpeed(std::nearbyint(*value)) ? text : "3");
}

std::string keptFullScreenSpeedText(std::string_view text) {
    const auto value = document::numericField(text);
    return std::string(value && isSpeed(*value) ? text : "3");
}

std::string speedTextUp(std::string_view text) {
    const double value = document::leadingNumber(text) + 1.0;
    return value >= kFastest ? "9" : numberText(value);
}

std::string speedTextDown(std::string_view text) {
    const double value = document::leadingNumber(text) - 1.0;
    return value <= kSlowest ? "1" : numberText(value);
}

bool isFastestSpeed(std::string_view text) {
    return document::leadingNumber(text) >= kFastest;
}

std::string plainSpeedText(std::string_view text, int change) {
    return numberText(document::leadingNumber(text) + change);
}

} // namespace zeltrona::animation
