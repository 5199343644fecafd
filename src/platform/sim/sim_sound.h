// The simulated sound device: buffers that play on the virtual clock.
#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace sim {

struct SimBuffer {
    std::string stem;
    long fileBytes = 0;
    long dataBytes = 0;
    int blockAlign = 1;
    int fileRate = 0;
    int freq = 0;
    int volume = 0;
    int pan = 0;
    bool playing = false;
    bool looping = false;
    std::uint64_t startMs = 0;   // when the play began, at startPos
    long startPos = 0;
    long pos = 0;                // position while stopped
};

class SimDevice {
public:
    // Brings every buffer up to the time now: a one-shot that ran out stops
    // with its position back at 0.
    void update(std::uint64_t now);
    long cursor(const SimBuffer& b, std::uint64_t now) const;
    // A playing buffer goes on from where it is now, so that a change of
    // its rate or loop flag counts from this moment.
    void rebase(SimBuffer& b, std::uint64_t now) const;
    std::map<int, SimBuffer> buffers;
    int nextId = 1;
    bool open = false;
};

}  // namespace sim
