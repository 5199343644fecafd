// Writes the seed files of the fuzz targets with the game's own writers:
// greenlark-fuzz-seeds FOLDER puts FOLDER/NAME/seedN for each target.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <vector>

#include "course/builtin.h"
#include "course/course.h"
#include "course/stored.h"
#include "course/textfile.h"
#include "records/coursefile.h"
#include "records/courserecord.h"
#include "records/roundlog.h"
#include "records/state.h"
#include "fuzz/memplatform.h"
#include "round/state.h"
#include "session/config.h"
#include "session/savedgame.h"
#include "session/state.h"
#include "sound/bank.h"
#include "voice/state.h"
#include "../tools/wavegen/finish.h"

namespace {

std::string root;

void seed(const std::string& target, const std::vector<std::string>& files) {
    std::filesystem::create_directories(root + "/" + target);
    for (size_t i = 0; i < files.size(); ++i)
        std::ofstream(root + "/" + target + "/seed" + std::to_string(i + 1), std::ios::binary) << files[i];
}

// One piece as the targets that read several files take it.
std::string piece(const std::string& bytes, bool big) {
    std::string out(1, char(bytes.size() & 0xFF));
    if (big) out += char((bytes.size() >> 8) & 0xFF);
    return out + bytes;
}

// Built-in course a in the .gcf form: seven values a hole.
std::string gcf(int a) {
    course::SetHolesData(a);
    course::File f;
    for (int hole = 1; hole <= 18; ++hole)
        for (int k = 1; k <= 7; ++k) course::writevalue(f, course::cs.H[hole][k]);
    return f.bytes;
}

// The same course as .gcx records, every third hole with a custom text on
// one side, and the par stored wide on hole 2.
std::string gcx(int a) {
    course::SetHolesData(a);
    course::File f;
    for (int hole = 1; hole <= 18; ++hole) {
        const int* h = course::cs.H[hole];
        course::writevalue(f, course::Num{double(h[1]), hole == 2 ? course::tagDouble : course::tagShort});
        course::writevalue(f, h[2]);
        bool custom = hole % 3 == 0;
        course::writevalue(f, custom ? course::customLoc : h[3]);
        course::writevalue(f, h[4]);
        if (custom) course::writestring(f, "the old quarry, côte " + std::to_string(hole));
        for (int k = 5; k <= 7; ++k) course::writevalue(f, h[k]);
        course::writevalue(f, hole % 2);
    }
    return f.bytes;
}

std::string values() {
    course::File f;
    course::writevalue(f, course::Num{-7, course::tagShort});
    course::writevalue(f, course::Num{70000, course::tagLong});
    course::writevalue(f, course::Num{0.25, course::tagSingle});
    course::writevalue(f, course::Num{1e308, course::tagDouble});
    return f.bytes;
}

std::string strings() {
    course::File f;
    course::writestring(f, " Brindlewick Links ");
    course::writestring(f, "");
    course::writestring(f, "€ café");
    return f.bytes;
}

std::string text() {
    course::File f;
    course::printitem(f, course::printed(-12));
    course::printitem(f, "\"quoted, with a comma\"");
    course::printline(f, course::bare(345));
    course::printline(f, " plain line ");
    course::printline(f, "");
    return f.bytes;
}

std::string log() {
    course::File f;
    course::printline(f, " Brindlewick Links ");
    course::printline(f, " 11/22/2026 ");
    course::printline(f, " Jo ");
    for (int hole = 1; hole <= 3; ++hole) {
        course::printline(f, " hole " + std::to_string(hole) + " par 4 ");
        course::printline(f, " 5 strokes ");
    }
    return f.bytes;
}

// A record of 71 strokes set by Jo on a date read from the system.
records::Record jo() {
    return {course::Num{71}, course::Num{11, course::tagDouble}, course::Num{22, course::tagDouble},
            course::Num{2026, course::tagDouble}, " Jo "};
}

std::string saved(int hole, int c) {
    play::rs = play::RoundState{};
    play::rs.hole = hole;
    play::rs.stks = 4 * (hole - 1);
    play::rs.total = 72;
    play::rs.c = c;
    play::rs.nsaves = 1;
    return session::savedform();
}

std::string wave(int rate, int n) {
    std::vector<std::int16_t> pcm;
    for (int i = 0; i < n; ++i) pcm.push_back(std::int16_t((i % 16) * 1000 - 8000));
    return wavegen::waveBytes(pcm, rate);
}

// A round log as the game writes it: the head, eighteen holes with the
// summary behind the last, and the lines of a record that fell.
std::string roundlog(fuzz::MemPlatform& mem) {
    course::cs = course::Course{};
    course::SetHolesData(1);
    course::fillBuiltinNames();
    play::rs = play::RoundState{};
    records::startlog(1);
    for (int hole = 1; hole <= 18; ++hole) {
        play::rs.hole = hole;
        play::rs.par = course::cs.H[hole][1];
        play::rs.stk = play::rs.par + hole % 3 - 1;
        play::rs.total += play::rs.par;
        play::rs.stks += play::rs.stk;
        ++(hole % 3 == 0 ? play::rs.Bogey : hole % 3 == 1 ? play::rs.BIRDIE : play::rs.PARS);
        records::loggit();
    }
    records::rc.old0 = course::Num{80};
    records::rc.old1 = course::Num{6}, records::rc.old2 = course::Num{6}, records::rc.old3 = course::Num{2006};
    records::rc.oldpn = " No One ";
    records::doendlog();
    return mem.files[records::golog()];
}

// golfrecords.txt as the game writes it: the built-in courses, one of them
// with a record set by Jo.
std::string recordlist(fuzz::MemPlatform& mem) {
    course::cs = course::Course{};
    course::fillBuiltinNames();
    play::rs = play::RoundState{};
    play::rs.nocs = 7;
    records::writerecord(records::grfpath(2), jo());
    records::dorecs();
    return mem.files[records::recordsfile()];
}

// golf.cfg as the game writes it, its first `lines` lines: ten, or the
// seven of an older file.
std::string config(fuzz::MemPlatform& mem, int lines) {
    play::rs = play::RoundState{};
    play::rs.pn = " Jo ";
    session::ss.kp = "/docs/brindlewick";
    session::ss.nv = 2, voice::vs.vr = 3, session::ss.vv = 80;
    sound::bk.wavol = -300, sound::bk.wavol2 = -200, sound::bk.cowtog = 1, sound::bk.powav = 1;
    voice::vs.keytog = 1;
    session::writeconfig();
    const std::string& all = mem.files[session::ss.kp + "/" + session::cfgName];
    size_t end = 0;
    for (int line = 0; line < lines; ++line) end = all.find("\r\n", end) + 2;
    return all.substr(0, end);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: greenlark-fuzz-seeds FOLDER\n");
        return 2;
    }
    root = argv[1];
    fuzz::MemPlatform& mem = fuzz::installed();
    seed("stored", {values(), strings()});
    seed("textfile", {std::string(1, '\0') + text(), std::string(1, '\x55') + text()});
    seed("course", {std::string(1, '\0') + gcf(1), std::string(1, '\1') + gcx(5)});
    seed("catalogue", {piece("golfAlpha.gcf", false) + piece(gcf(2), true) + piece("golfbeta.GCX", false) +
                           piece(gcx(3), true) + piece("golf.gcx", false) + piece(gcf(4), true)});
    seed("savedgame", {piece(saved(7, 3), true), piece(saved(12, 7), true) + piece("mine", false) + piece(gcx(6), true),
                       piece(std::string("\2\0\0\0", 4), true)});
    std::string cut = wave(22050, 40);
    seed("wave", {wave(22050, 64), wave(11025, 9), cut.substr(0, cut.size() - 7)});
    seed("script", {"# a round\nkey Enter\nwait 1.5\nexpect \" Welcome \\\" \\x41 \"\ntype \"abc\"\nat golf3 50 Space\nexpect-sound golf16\nquiet\nkey F4 Num3 #190 # three keys\nclose\nend\n"});
    seed("logreview", {log(), "only\r\none\n"});
    seed("records", {records::recordbytes(records::defaultrecord()), records::recordbytes(jo())});
    seed("readlog", {std::string(1, '\1') + roundlog(mem), std::string(1, '\0') + recordlist(mem)});
    // The first byte: 1 golf.cfg in the player's folder, 2 beside the
    // program (the first piece), 3 both.
    seed("config", {std::string(1, '\1') + config(mem, 10), std::string(1, '\1') + config(mem, 7),
                    std::string(1, '\3') + piece(config(mem, 10), true) + config(mem, 7)});
    return 0;
}
