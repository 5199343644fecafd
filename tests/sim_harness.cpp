#include "sim_harness.h"

#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/wait.h>

#include "input/keys.h"
#include "platform/platform.h"
#include "platform/sim/runner.h"
#include "platform/sim/sim_platform.h"
#include "platform/sim/transcript.h"
#include "sound/bank.h"
#include "voice/getter.h"
#include "voice/patterns.h"
#include "voice/speech.h"
#include "voice/state.h"

namespace simtest {

namespace {

std::vector<std::string>* captured = nullptr;
void capture(const std::string& line) { captured->push_back(line); }

std::string shellQuote(const std::string& s) {
    std::string out = "'";
    for (char c : s) out += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return out + "'";
}

std::string body(const std::string& line) {
    size_t sp = line.find(' ');
    return sp == std::string::npos ? line : line.substr(sp + 1);
}

}  // namespace

int Result::find(const std::string& what, int from) const {
    for (size_t i = size_t(from < 0 ? 0 : from); i < lines.size(); ++i)
        if (body(lines[i]).find(what) != std::string::npos) return int(i);
    return -1;
}

int Result::count(const std::string& what) const {
    int n = 0;
    for (const auto& l : lines)
        if (body(l).find(what) != std::string::npos) ++n;
    return n;
}

std::vector<int> Result::sequence(const std::vector<std::string>& whats, int from) const {
    std::vector<int> at;
    int next = from;
    for (const auto& w : whats) {
        int i = next < 0 ? -1 : find(w, next);
        at.push_back(i);
        next = i < 0 ? -1 : i + 1;
    }
    return at;
}

std::string Result::dump() const {
    std::string out = "exit " + std::to_string(code) + "\n" + err;
    for (const auto& l : lines) out += l + "\n";
    return out;
}

std::string tempDir() {
    std::string tmpl = (std::filesystem::temp_directory_path() / "greenlark-test-XXXXXX").string();
    return mkdtemp(tmpl.data());
}

std::string slurp(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

Result runBinary(const std::string& script, const std::vector<std::string>& options) {
    std::string dir = tempDir();
    std::string scriptPath = dir + "/script.sim", errPath = dir + "/stderr";
    std::ofstream(scriptPath) << script;
    std::string cmd = shellQuote(GREENLARK_SIM);
    for (const auto& o : options) cmd += " " + shellQuote(o);
    cmd += " " + shellQuote(scriptPath) + " 2>" + shellQuote(errPath);
    Result r;
    FILE* pipe = popen(cmd.c_str(), "r");
    std::array<char, 4096> buf{};
    std::string out;
    while (pipe && std::fgets(buf.data(), int(buf.size()), pipe)) out += buf.data();
    int status = pipe ? pclose(pipe) : -1;
    r.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    std::istringstream in(out);
    for (std::string l; std::getline(in, l);) r.lines.push_back(l);
    std::ifstream e(errPath);
    std::stringstream es;
    es << e.rdbuf();
    r.err = es.str();
    std::filesystem::remove_all(dir);
    return r;
}

namespace {

void runOn(std::istream& in, bool live, const std::function<void()>& program, Result& r, const std::string& docs,
           const std::string& game, std::uint32_t tickStart = 0, double timeout = 900) {
    captured = &r.lines;
    sim::setSink(capture);
    sim::Runner runner(in, live, timeout);
    std::string error;
    if (!runner.preload(error)) {
        r.code = 2;
        r.err = error;
    } else {
        sim::Options o;
        o.game = o.cwd = game;
        o.docs = docs;
        o.tickStart = tickStart;
        sim::SimPlatform p(o, runner);
        platform::install(&p);
        p.openSoundDevice();   // as start-up does first
        try {
            try {
                program();
            } catch (const platform::ProgramEnd&) {
            }
            p.log("exit");
            r.code = runner.finish();
        } catch (const sim::RunnerStop& stop) {
            r.code = stop.code;
        }
        platform::install(nullptr);
    }
    sim::setSink(nullptr);
    captured = nullptr;
}

}  // namespace

Result runInProcess(const std::string& script, const std::function<void()>& program, const std::string& docs,
                    const std::string& game, double timeoutSeconds) {
    Result r;
    std::istringstream in(script);
    runOn(in, false, program, r, docs, game, 0, timeoutSeconds);
    return r;
}

Result runInProcessFromTick(std::uint32_t tickStart, const std::string& script, const std::function<void()>& program) {
    Result r;
    std::istringstream in(script);
    runOn(in, false, program, r, "", GREENLARK_GAME_DIR, tickStart);
    return r;
}

void runInProcessLive(std::istream& in, const std::function<void()>& program, Result& r, const std::string& docs) {
    runOn(in, true, program, r, docs, GREENLARK_GAME_DIR);
}

void namePrompt() {
    input::ks = input::KeyState{};
    input::fkeys = input::FKeyRoutines{};
    input::fkeys.stopAbAndClaps = sound::stopAbAndClaps;
    voice::vs = voice::VoiceState{};
    platform::os().setKeyHandler([](int code) { input::Form_KeyDown(code); });
    while (true) {
        input::clk();
        voice::getter(" Please enter your name. ");
        if (input::ks.g == key::Escape) return;
        std::string name = " " + voice::vs.r + " ";
        voice::Question q;
        q.text = " Is " + name + " correct for your name?";
        if (voice::yesno(q)) {
            voice::say(" Hello " + name + ". ");
            return;
        }
    }
}

}  // namespace simtest
