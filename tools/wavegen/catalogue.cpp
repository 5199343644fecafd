#include "catalogue.h"

#include "sounds.h"

namespace wavegen {

namespace {

constexpr Finish oneShot(Level l) { return {l, false}; }
constexpr Finish looped(Level l) { return {l, true}; }

const Recipe recipes[] = {
    {"amb1.wav", songbird, oneShot(Level::ambience)},
    {"amb2.wav", windGusts, oneShot(Level::bed)},
    {"amb3.wav", crickets, oneShot(Level::ambience)},
    {"amb4.wav", distantMower, oneShot(Level::ambience)},
    {"amb5.wav", woodpecker, oneShot(Level::ambience)},
    {"amb6.wav", farDog, oneShot(Level::ambience)},
    {"amb7.wav", cuckoo, oneShot(Level::ambience)},
    {"amb8.wav", crows, oneShot(Level::ambience)},
    {"amb9.wav", woodPigeon, oneShot(Level::ambience)},
    {"amb10.wav", passingBee, oneShot(Level::ambience)},
    {"amb11.wav", breezeInTrees, oneShot(Level::bed)},
    {"amb12.wav", ducks, oneShot(Level::ambience)},
    {"amb13.wav", churchBells, oneShot(Level::ambience)},
    {"amb14.wav", cow, oneShot(Level::ambience)},
    {"amb15.wav", chickens, oneShot(Level::ambience)},
    {"amb16.wav", turkey, oneShot(Level::ambience)},
    {"amb17.wav", lowCow, oneShot(Level::ambience)},
    {"amb18.wav", horse, oneShot(Level::ambience)},
    {"amb19.wav", roosterAndHens, oneShot(Level::ambience)},
    {"amb20.wav", nextFairway, oneShot(Level::ambience)},
    {"amb21.wav", fireEngine, oneShot(Level::ambience)},
    {"amb22.wav", ambulance, oneShot(Level::ambience)},
    {"amb23.wav", policeYelp, oneShot(Level::ambience)},
    {"amb24.wav", trainClatter, oneShot(Level::ambience)},
    {"amb25.wav", trainHorn, oneShot(Level::ambience)},
    {"amb26.wav", carDoorAndFob, oneShot(Level::ambience)},
    {"amb27.wav", jetPass, oneShot(Level::ambience)},
    {"amb28.wav", engineStartIdle, oneShot(Level::ambience)},
    {"amb29.wav", propellerPlane, oneShot(Level::ambience)},
    {"amb30.wav", highway, oneShot(Level::bed)},
    {"amb31.wav", swimmingPool, oneShot(Level::ambience)},
    {"amb32.wav", shopsCarPark, oneShot(Level::ambience)},
    {"amb33.wav", passingCars, oneShot(Level::ambience)},
    {"amb34.wav", helicopter, oneShot(Level::ambience)},
    {"amb35.wav", pig, oneShot(Level::ambience)},
    {"golf0.wav", openingJingle, oneShot(Level::music)},
    {"golf1.wav", driverCrack, oneShot(Level::impact)},
    {"golf2.wav", sandThump, oneShot(Level::impact)},
    {"golf3.wav", whiffAndThud, oneShot(Level::impact)},
    {"golf4.wav", cupRattle, oneShot(Level::impact)},
    {"golf5.wav", pondSplash, oneShot(Level::impact)},
    {"golf6.wav", puttIndicator, oneShot(Level::indicator)},
    {"golf7.wav", hitIndicator, oneShot(Level::indicator)},
    {"golf8.wav", crowdOoh, oneShot(Level::crowd)},
    {"golf9.wav", crowdAww, oneShot(Level::crowd)},
    {"golf10.wav", galleryMurmur, looped(Level::bed)},
    {"golf11.wav", applauseSmall, oneShot(Level::crowd)},
    {"golf12.wav", applauseMedium, oneShot(Level::crowd)},
    {"golf13.wav", applauseBig, oneShot(Level::crowd)},
    {"golf14.wav", treeCrash, oneShot(Level::impact)},
    {"golf15.wav", jingleEnding, oneShot(Level::music)},
    {"golf16.wav", countdownTick, oneShot(Level::signal)},
    {"golf17.wav", putterTock, oneShot(Level::impact)},
    {"golf18.wav", bigWhoosh, oneShot(Level::impact)},
    {"golf19.wav", errorBuzz, oneShot(Level::signal)},
    {"golf20.wav", birdieFanfare, oneShot(Level::music)},
    {"golf21.wav", parFanfare, oneShot(Level::music)},
    {"golf22.wav", eagleFanfare, oneShot(Level::music)},
    {"golf23.wav", penaltyTones, oneShot(Level::signal)},
    {"golf24.wav", holeInOneFanfare, oneShot(Level::music)},
    {"golf25.wav", sadDescent, oneShot(Level::music)},
    {"golf26.wav", indicatorSample, oneShot(Level::indicator)},
    {"golf27.wav", puttIndicatorBeeps, oneShot(Level::indicator)},
    {"golf28.wav", hitIndicatorBeeps, oneShot(Level::indicator)},
    {"golf29.wav", workingLoop, looped(Level::bed)},
    {"golf30.wav", ballWasher, looped(Level::bed)},
    {"golf31.wav", lappingWater, looped(Level::bed)},
};

}  // namespace

const Recipe* recipeFor(const std::string& name) {
    for (const Recipe& r : recipes)
        if (name == r.name) return &r;
    return nullptr;
}

}  // namespace wavegen
