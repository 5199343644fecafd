// greenlark-sim: runs the game on the simulated platform against a script.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "platform/sim/runner.h"
#include "platform/sim/sim_platform.h"
#include "platform/sim/transcript.h"
#include "session/entry.h"

namespace {

int usage() {
    std::fprintf(stderr,
                 "usage: greenlark-sim [--game DIR] [--cwd DIR] [--docs DIR] [--voices N] "
                 "[--date M/D/YYYY] [--clock HH:MM:SS] [--timeout S] SCRIPT|-\n");
    return 2;
}

bool parseClock(const std::string& s, double& out) {
    int h = 0, m = 0, sec = 0;
    char extra = 0;
    if (std::sscanf(s.c_str(), "%d:%d:%d%c", &h, &m, &sec, &extra) != 3) return false;
    if (h < 0 || h > 23 || m < 0 || m > 59 || sec < 0 || sec > 59) return false;
    out = h * 3600.0 + m * 60.0 + sec;
    return true;
}

std::string makeTempDocs() {
    std::string tmpl = (std::filesystem::temp_directory_path() / "greenlark-docs-XXXXXX").string();
    char* made = mkdtemp(tmpl.data());
    return made ? std::string(made) : std::string();
}

std::string absolute(const std::string& folder) {
    if (folder.empty()) return folder;
    std::error_code ec;
    auto full = std::filesystem::absolute(folder, ec);
    if (ec) return folder;
    full = full.lexically_normal();
    if (!full.has_filename() && full != full.root_path()) full = full.parent_path();
    return full.string();
}

struct Args {
    sim::Options opt;
    std::string script;
    bool docsGiven = false;
    bool cwdGiven = false;
};

bool parseArgs(int argc, char** argv, Args& a) {
    a.opt.game = GREENLARK_GAME_DIR;
    for (int i = 1; i < argc; ++i) {
        std::string k = argv[i];
        if (k.rfind("--", 0) != 0 || k == "-") {
            if (!a.script.empty()) return false;
            a.script = k;
            continue;
        }
        if (i + 1 >= argc) return false;
        std::string v = argv[++i];
        if (k == "--game") a.opt.game = v;
        else if (k == "--cwd") a.cwdGiven = true, a.opt.cwd = v;
        else if (k == "--docs") a.docsGiven = true, a.opt.docs = v;
        else if (k == "--voices") a.opt.voices = std::atoi(v.c_str());
        else if (k == "--date") a.opt.date = v;
        else if (k == "--clock") { if (!parseClock(v, a.opt.clockStart)) return false; }
        else if (k == "--timeout") a.opt.timeout = std::atof(v.c_str());
        else return false;
    }
    if (!a.cwdGiven) a.opt.cwd = a.opt.game;
    // The game joins its folders with relative file names and reads them in
    // the working folder: a relative folder would be joined twice.
    a.opt.game = absolute(a.opt.game);
    a.opt.cwd = absolute(a.opt.cwd);
    if (a.docsGiven) a.opt.docs = absolute(a.opt.docs);
    return !a.script.empty() && a.opt.voices >= 0 && a.opt.timeout > 0;
}

int run(Args& a, std::istream& in) {
    sim::Runner runner(in, a.script == "-", a.opt.timeout);
    std::string error;
    if (!runner.preload(error)) {
        std::fprintf(stderr, "greenlark-sim: %s\n", error.c_str());
        return 2;
    }
    sim::SimPlatform p(a.opt, runner);
    platform::install(&p);
    try {
        try {
            session::gamemain();
        } catch (const platform::ProgramEnd&) {
        }
        p.log("exit");
        return runner.finish();
    } catch (const sim::RunnerStop& stop) {
        return stop.code;
    }
}

}  // namespace

int main(int argc, char** argv) {
    Args a;
    if (!parseArgs(argc, argv, a)) return usage();
    bool tempDocs = !a.docsGiven;
    if (tempDocs) a.opt.docs = makeTempDocs();
    int code;
    if (a.script == "-") {
        code = run(a, std::cin);
    } else {
        std::ifstream f(a.script);
        if (!f) {
            std::fprintf(stderr, "greenlark-sim: cannot read %s\n", a.script.c_str());
            code = 2;
        } else {
            code = run(a, f);
        }
    }
    if (tempDocs && !a.opt.docs.empty()) {
        std::error_code ec;
        std::filesystem::remove_all(a.opt.docs, ec);
    }
    std::fflush(stdout);
    return code;
}
