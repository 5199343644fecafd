// The real platform in this process without a screen: SDL's dummy video
// driver and the disk audio driver, which plays into a file at the pace of a
// real device. The environment is put back as it was when the test ends.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace realtest {

class Headless {
public:
    // `soundFile`: where the disk driver writes.
    explicit Headless(const std::string& soundFile) {
        set("SDL_VIDEODRIVER", "dummy");
        set("SDL_AUDIODRIVER", "disk");
        set("SDL_DISKAUDIOFILE", soundFile);
    }
    ~Headless() {
        for (auto it = saved_.rbegin(); it != saved_.rend(); ++it) {
            if (it->second) setenv(it->first.c_str(), it->second->c_str(), 1);
            else unsetenv(it->first.c_str());
        }
    }
    Headless(const Headless&) = delete;
    Headless& operator=(const Headless&) = delete;

    // Sets a variable for the test's time; an empty value unsets it.
    void set(const std::string& name, const std::string& value) {
        const char* old = std::getenv(name.c_str());
        saved_.emplace_back(name, old ? std::optional<std::string>(old) : std::nullopt);
        if (value.empty()) unsetenv(name.c_str());
        else setenv(name.c_str(), value.c_str(), 1);
    }

private:
    std::vector<std::pair<std::string, std::optional<std::string>>> saved_;
};

}  // namespace realtest
