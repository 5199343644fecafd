#include "platform/real/voices.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "platform/platform.h"

namespace platform::real {

namespace {

struct VoiceEntry {
    const char* id;
    const char* title;
};

// English voices and variants that ship with espeak-ng itself.
constexpr VoiceEntry kVoices[] = {
    {"en-us", "American English"},
    {"en-us+f3", "American English, female"},
    {"en", "British English"},
    {"en+f3", "British English, female"},
    {"en+m3", "British English, second male"},
    {"en-gb-x-rp", "Received Pronunciation"},
    {"en-gb-scotland", "Scottish English"},
    {"en-gb-scotland+f2", "Scottish English, female"},
    {"en-gb-x-gbclan", "Lancashire English"},
    {"en-gb-x-gbcwmd", "West Midlands English"},
    {"en-029", "Caribbean English"},
    {"en-us-nyc", "New York English"},
};

const VoiceEntry& entry(int index) {
    if (index < 0 || index >= voiceCount()) return kVoices[0];
    return kVoices[index];
}

}  // namespace

int voiceCount() { return int(std::size(kVoices)); }

std::string voiceId(int index) { return entry(index).id; }

std::string voiceTitle(int index) { return entry(index).title; }

int wordsPerMinute(int rate) {
    double wpm = 175.0 * std::pow(1.1, std::clamp(rate, -fastestRate, fastestRate));
    return std::clamp(int(std::lround(wpm)), 80, 450);
}

}  // namespace platform::real
