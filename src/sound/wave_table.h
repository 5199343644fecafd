// The game's sound files and their exact sizes, checked at start-up. The
// generator (tools/wavegen) takes its durations from this table, so the files
// it writes and the sizes the game expects come from one place.
#pragma once

namespace sound {

constexpr int effectRate = 22050;        // every file but the power indicators
constexpr int indicatorRate = 11025;     // the four power indicators
constexpr long waveHeaderBytes = 44;     // plain RIFF header, PCM 16-bit mono

constexpr long waveBytes(long frames) { return waveHeaderBytes + 2 * frames; }
constexpr long dataFrames(long bytes) { return (bytes - waveHeaderBytes) / 2; }

// The power indicators: the pitch peaks at exactly half the sound data, so
// both lengths are an even number of frames.
constexpr long hitIndicatorFrames = 30870;     // 2.8 s at 11025 Hz
constexpr long puttIndicatorFrames = 106942;   // about 9.7 s at 11025 Hz
constexpr long hitIndicatorBytes = waveBytes(hitIndicatorFrames);     // golf7.wav, golf28.wav
constexpr long puttIndicatorBytes = waveBytes(puttIndicatorFrames);   // golf6.wav, golf27.wav
constexpr const char* hitIndicatorName = "golf7.wav";
constexpr const char* hitIndicatorBeepsName = "golf28.wav";
constexpr const char* puttIndicatorName = "golf6.wav";
constexpr const char* puttIndicatorBeepsName = "golf27.wav";

// The files by stem and what each is for. The game names a file to the sound
// routines by its stem.
namespace stem {
inline constexpr char jingle[] = "golf0";         // the opening and the closing jingle
inline constexpr char strike[] = "golf1";         // strike of a full swing
inline constexpr char sandStrike[] = "golf2";     // strike from a trap; the effects volume's sample
inline constexpr char misuseSwing[] = "golf3";    // swing of a misused club
inline constexpr char sink[] = "golf4";           // the ball drops into the hole
inline constexpr char splash[] = "golf5";         // the ball in a pond
inline constexpr char puttIndicator[] = "golf6";  // putt power indicator, regular
inline constexpr char hitIndicator[] = "golf7";   // hit power indicator, regular
inline constexpr char crowdOoh[] = "golf8";       // the crowd behind a strike or a putt
inline constexpr char crowdAww[] = "golf9";       // the disappointed crowd
inline constexpr char crowdLoop[] = "golf10";     // the crowd, looped
inline constexpr char clap1[] = "golf11";         // applause, small
inline constexpr char clap2[] = "golf12";         // applause, medium
inline constexpr char clap3[] = "golf13";         // applause, big
inline constexpr char trees[] = "golf14";         // the ball in the trees or out of bounds
inline constexpr char jingleEnd[] = "golf15";     // an ending of the jingle; a try to close the window
inline constexpr char tick[] = "golf16";          // the three countdown ticks before a reading
inline constexpr char puttStrike[] = "golf17";    // strike of a putt
inline constexpr char bigSwing[] = "golf18";      // behind a swing of more than 0.97 of full power
inline constexpr char error[] = "golf19";         // no choice; a bogey or a double bogey
inline constexpr char birdie[] = "golf20";        // birdie; the second sound of a double eagle
inline constexpr char par[] = "golf21";           // par
inline constexpr char eagle[] = "golf22";         // eagle; the first sound of a double eagle
inline constexpr char penalty[] = "golf23";       // a penalty stroke
inline constexpr char holeInOne[] = "golf24";     // hole in one
inline constexpr char worse[] = "golf25";         // a score worse than a double bogey
inline constexpr char powerSample[] = "golf26";   // the power volume's sample
inline constexpr char puttIndicatorBeeps[] = "golf27";   // putt power indicator with beeps
inline constexpr char hitIndicatorBeeps[] = "golf28";    // hit power indicator with beeps
inline constexpr char voiceWait[] = "golf29";     // looped while a new voice is made
inline constexpr char washer[] = "golf30";        // the ball washer, looped
inline constexpr char water[] = "golf31";         // the water loops
}  // namespace stem

// The ambient sounds "amb1" to "amb35". 1 to 13 are general sounds heard
// near the middle: songbird, wind gusts, crickets, a distant mower, a
// woodpecker, a far dog, a cuckoo, crows, a wood pigeon, a passing bee, the
// breeze in the trees (always in the centre), ducks, church bells. From 14
// on each belongs to a kind of place beside the hole and is heard from its
// side (the flag table in ambient.cpp): 14 cow, 15 chickens, 16 turkey,
// 17 cow, 18 horse, 19 rooster and hens, 20 the next fairway, 21 fire
// engine, 22 ambulance, 23 police, 24 train, 25 train horn, 26 a car door,
// 27 jet, 28 an engine starting, 29 propeller plane, 30 highway, 31
// swimming pool, 32 shops and car park, 33 passing cars, 34 helicopter,
// 35 pig.
inline constexpr int firstPlaceAmb = 14;

struct WaveSize {
    const char* name;
    long bytes;
    int rate;
};

constexpr int waveCount = 67;
// In the order the game checks them: names sorted without regard to case.
extern const WaveSize waveSizes[waveCount];

// The entry for a file name (case-insensitive), or nullptr.
const WaveSize* findWave(const char* name);

}  // namespace sound
