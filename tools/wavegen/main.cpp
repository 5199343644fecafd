// greenlark-wavegen OUTDIR [NAME...]: writes the game's sound files (or only
// the named ones), the same bytes on every run.
#include <cstdio>
#include <fstream>
#include <string>

#include "catalogue.h"
#include "speech.h"
#include "sound/wave_table.h"

namespace {

bool make(const sound::WaveSize& entry, const std::string& dir) {
    using namespace wavegen;
    const Recipe* r = recipeFor(entry.name);
    if (!r) {
        std::fprintf(stderr, "greenlark-wavegen: no recipe for %s\n", entry.name);
        return false;
    }
    Job job{entry.rate, sound::dataFrames(entry.bytes), Rng(seedOf(entry.name))};
    std::string bytes = waveBytes(finish(r->make(job), job.frames, job.rate, r->finish), job.rate);
    if (long(bytes.size()) != entry.bytes) {
        std::fprintf(stderr, "greenlark-wavegen: %s came out %zu bytes\n", entry.name, bytes.size());
        return false;
    }
    std::ofstream out(dir + "/" + entry.name, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), std::streamsize(bytes.size()));
    if (!out) {
        std::fprintf(stderr, "greenlark-wavegen: cannot write %s/%s\n", dir.c_str(), entry.name);
        return false;
    }
    return true;
}

bool wanted(const char* name, int argc, char** argv) {
    if (argc == 2) return true;
    for (int i = 2; i < argc; ++i)
        if (std::string(argv[i]) == name) return true;
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: greenlark-wavegen OUTDIR [NAME...]\n");
        return 2;
    }
    if (!wavegen::speechReady()) {
        std::fprintf(stderr, "greenlark-wavegen: espeak-ng could not be started\n");
        return 1;
    }
    for (const sound::WaveSize& entry : sound::waveSizes)
        if (wanted(entry.name, argc, argv) && !make(entry, argv[1])) return 1;
    return 0;
}
