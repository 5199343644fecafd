// Every recipe: one function per file, grouped by family.
#pragma once

#include "job.h"

namespace wavegen {

// strikes.cpp
Samples driverCrack(Job& j);
Samples sandThump(Job& j);
Samples whiffAndThud(Job& j);
Samples putterTock(Job& j);
Samples bigWhoosh(Job& j);

// ball_fates.cpp
Samples cupRattle(Job& j);
Samples pondSplash(Job& j);
Samples treeCrash(Job& j);

// jingles.cpp
Samples openingJingle(Job& j);
Samples jingleEnding(Job& j);

// fanfares.cpp
Samples parFanfare(Job& j);
Samples birdieFanfare(Job& j);
Samples eagleFanfare(Job& j);
Samples holeInOneFanfare(Job& j);
Samples penaltyTones(Job& j);
Samples sadDescent(Job& j);

// signals.cpp
Samples countdownTick(Job& j);
Samples errorBuzz(Job& j);

// indicators.cpp
Samples hitIndicator(Job& j);
Samples puttIndicator(Job& j);
Samples hitIndicatorBeeps(Job& j);
Samples puttIndicatorBeeps(Job& j);
Samples indicatorSample(Job& j);

// crowd.cpp
Samples galleryMurmur(Job& j);
Samples crowdOoh(Job& j);
Samples crowdAww(Job& j);

// applause.cpp
Samples applauseSmall(Job& j);
Samples applauseMedium(Job& j);
Samples applauseBig(Job& j);

// loops.cpp
Samples workingLoop(Job& j);
Samples ballWasher(Job& j);
Samples lappingWater(Job& j);

// birds.cpp
Samples songbird(Job& j);
Samples cuckoo(Job& j);
Samples crows(Job& j);
Samples woodPigeon(Job& j);
Samples ducks(Job& j);

// outdoors.cpp
Samples windGusts(Job& j);
Samples breezeInTrees(Job& j);
Samples crickets(Job& j);
Samples passingBee(Job& j);
Samples woodpecker(Job& j);
Samples distantMower(Job& j);
Samples farDog(Job& j);
Samples churchBells(Job& j);

// farm.cpp
Samples cow(Job& j);
Samples lowCow(Job& j);
Samples chickens(Job& j);
Samples roosterAndHens(Job& j);
Samples turkey(Job& j);
Samples horse(Job& j);
Samples pig(Job& j);

// sirens.cpp
Samples fireEngine(Job& j);
Samples ambulance(Job& j);
Samples policeYelp(Job& j);

// rail_air.cpp
Samples trainClatter(Job& j);
Samples trainHorn(Job& j);
Samples jetPass(Job& j);
Samples propellerPlane(Job& j);
Samples helicopter(Job& j);

// roads.cpp
Samples carDoorAndFob(Job& j);
Samples engineStartIdle(Job& j);
Samples highway(Job& j);
Samples passingCars(Job& j);

// people.cpp
Samples nextFairway(Job& j);
Samples swimmingPool(Job& j);
Samples shopsCarPark(Job& j);

}  // namespace wavegen
