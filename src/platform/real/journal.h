// The game journal: a real game written down as it is played, as a
// greenlark-sim script, so that a player who meets a bug can send it and a
// developer can play it again on the simulated platform. Each key stands
// behind an expect of the text last spoken before it; a key during a power
// indicator is an at line; the seeds the game drew from the clock are seed
// lines. What the player heard is written beside it as comments.
#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace platform::real {

class Journal {
public:
    Journal() = default;
    ~Journal();
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    // Starts a new journal in the file; false if it cannot be written.
    bool open(const std::string& path);
    bool on() const { return out_ != nullptr; }

    // A power indicator playing when a key came, and its play cursor.
    struct Indicator {
        int id = 0;
        long cursor = 0;
    };

    void made(int id, const std::string& path, long fileBytes);
    void released(int id);
    void releasedAll();
    // The power indicator buffers there are.
    std::vector<int> indicators() const;
    void spoke(const std::string& text, int flag);
    // A buffer started playing.
    void played(int id, bool loop);
    // A key delivered to the game, during an indicator or not.
    void key(int code, const std::optional<Indicator>& during);
    // The game read a play cursor.
    void read(int id, long cursor);
    void closed();
    void seed(std::uint64_t seed);
    // The program ends: the journal's last line.
    void finish();

private:
    struct Buffer {
        std::string stem;
        long fileBytes = 0;
        bool indicator = false;
    };
    // A key during an indicator, written once the game has read its cursor.
    struct Press {
        int id = 0;
        long cursor = 0;
        int code = 0;
    };

    void line(const std::string& text);
    void expectHeard();
    void writePress();

    std::FILE* out_ = nullptr;
    std::map<int, Buffer> buffers_;
    std::vector<std::string> heard_;   // texts spoken since the last key
    std::optional<Press> press_;
};

// The per cent of an indicator's file to write for a play cursor. The game
// reads an indicator in whole per cent of its length and greenlark-sim
// moves a millisecond at a time, up to 0.07 per cent of the smallest
// indicator; the figure is cut to a tenth, never more than 0.9 into its whole
// per cent, so that the replay reads the same whole per cent.
std::string atPercent(long cursor, long fileBytes);

// The expects that lead up to the last of the texts heard since the last
// key: the last text, behind the latest earlier text that holds it (an
// expect takes the first text that holds its own), and so on back.
std::vector<std::string> expectChain(const std::vector<std::string>& heard);

}  // namespace platform::real
