#include "course/course.h"
#include "course/locs.h"

#include <iterator>

namespace course {

namespace {

// Each text is spoken exactly as it stands, blanks and hyphens included, and
// is joined into sentences without further blanks.
const char* const vocabulary[] = {
    "",  // 0 stays empty
    " Fairway ",  // 1
    " Deep Rough ",  // 2
    " Trees ",  // 3
    " Adjacent Fairway ",  // 4
    " A-Sand Trap ",  // 5
    " A-Big Lake ",  // 6
    " Out Of Bounds ",  // 7
    " A-barn ",  // 8
    " A-beach ",  // 9
    " A-big-hill ",  // 10
    " A-castle ",  // 11
    " A-chicken-farm ",  // 12
    " A-cliff ",  // 13
    " A-club-house ",  // 14
    " A-corn-field ",  // 15
    " A-creek ",  // 16
    " A-factory ",  // 17
    " A-farm-house ",  // 18
    " A-field-of-wheat ",  // 19
    " A-fire-house ",  // 20
    " A-grave-yard ",  // 21
    " A-green-house ",  // 22
    " A-haunted-house ",  // 23
    " A-highway ",  // 24
    " A-horse-corral ",  // 25
    " A-hospital ",  // 26
    " A-hotel ",  // 27
    " A-jail ",  // 28
    " A-mansion ",  // 29
    " A-motel ",  // 30
    " A-park ",  // 31
    " A-parking-lot ",  // 32
    " A-pig-farm ",  // 33
    " A-police-station ",  // 34
    " A-Pro-shop ",  // 35
    " A-pumpkin-patch ",  // 36
    " A-restaurant ",  // 37
    " A-river ",  // 38
    " A-road ",  // 39
    " A-rose-garden ",  // 40
    " A-shopping-mall ",  // 41
    " A-strawberry-field ",  // 42
    " A-swamp ",  // 43
    " A-swimming-pool ",  // 44
    " A-tavern ",  // 45
    " A-vegetable-garden ",  // 46
    " A-Vineyard ",  // 47
    " an-airport ",  // 48
    " an-amusement-park ",  // 49
    " an-apartment-building ",  // 50
    " an-apple-orchard ",  // 51
    " iris-beds ",  // 52
    " the-ocean ",  // 53
    " the-side-of A-mountain ",  // 54
    " train-tracks ",  // 55
    " A-babbling-spring ",  // 56
    " A-bunker ",  // 57
    " A-down-hill-slope ",  // 58
    " An-up-hill-slope ",  // 59
    " A-bandstand-in-the-park ",  // 60
    " A-banshee ",  // 61
    " A-baseball-field ",  // 62
    " A-beer-garden ",  // 63
    " A-beer-store ",  // 64
    " A-bike-path ",  // 65
    " A-brothel ",  // 66
    " A-Burger-King ",  // 67
    " A-car-dealership ",  // 68
    " A-chubby-cupid-aiming-his-bo-and-arrow ",  // 69
    " A-Circle-K ",  // 70
    " A-circle-of-little-girls-dancing-round A-may-pole ",  // 71
    " A-cowardly-lion ",  // 72
    " A-crack-house ",  // 73
    " A-Dairy-Queen ",  // 74
    " A-drive-in-theatre ",  // 75
    " A-field-of-four-leaf-clovers ",  // 76
    " A-field-of-marijuana ",  // 77
    " A-field-of-poppy ",  // 78
    " A-field-of-shamrocks ",  // 79
    " A-fifty-pound-box-of-chocolates ",  // 80
    " A-Free-Clinic ",  // 81
    " A-frilly-valentine ",  // 82
    " A-gravel-pit ",  // 83
    " A-groundhog ",  // 84
    " A-Guide-dog-school ",  // 85
    " A-hallmark-Store ",  // 86
    " A-haunted-forest ",  // 87
    " A-hot-babe-on-the-beach ",  // 88
    " A-house-decorated-with-twinkling-lights ",  // 89
    " A-jaunty-old-scarecrow-waving-hello-from-the-top-of A-hill ",  // 90
    " A-K-F-C ",  // 91
    " A-kennel ",  // 92
    " A-leather-boutique ",  // 93
    " A-leprechaun-hiding-his-pot-of-gold ",  // 94
    " A-majestic-old-Scottish-castle ",  // 95
    " A-massage-parlor ",  // 96
    " A-Mick-Donalds ",  // 97
    " A-miniature-replica-of-Mount-Rushmore ",  // 98
    " A-Mobil-home-park ",  // 99
    " A-motorcycle-shop ",  // 100
    " A-museum ",  // 101
    " A-music-store ",  // 102
    " A-national-wild-life-preserve ",  // 103
    " A-nest-of-fuzzy-new-born-chicks ",  // 104
    " A-patio-filled-with-rowdy-beer-drinkers ",  // 105
    " A-pet-cemetery ",  // 106
    " A-Pilgrim-plowing-his-field-of-wheat ",  // 107
    " A-Pizza-Hut ",  // 108
    " A-radiant-Christmas-tree ",  // 109
    " A-scarecrow ",  // 110
    " A-Seas-candy-shop ",  // 111
    " A-Seven-eleven ",  // 112
    " A-sign-wishing-everyone A-very-happy-new-year ",  // 113
    " A-six-foot-bottle-of-champagne ",  // 114
    " A-slope-covered-with-autumn-leaves  ",  // 115
    " A-snow-frosted-hill ",  // 116
    " A-stable ",  // 117
    " A-stand-of-Christmas-trees ",  // 118
    " A-Star-Bucks ",  // 119
    " A-statue-of-Quillmore-in-the-park ",  // 120
    " A-stone-quarry ",  // 121
    " A-Strip-club ",  // 122
    " A-super-market ",  // 123
    " A-table-laden-with A-thanksgiving-feast ",  // 124
    " A-Taco-Bell ",  // 125
    " A-tall-glass-of-green-beer ",  // 126
    " A-tanning-salon ",  // 127
    " A-three-legged-turkey  ",  // 128
    " A-Tin-Man-chopping-down A-tree ",  // 129
    " A-topless-bar ",  // 130
    " A-Volcano ",  // 131
    " A-Wall-Mart ",  // 132
    " A-waterfall ",  // 133
    " A-windmill ",  // 134
    " A-witch-flying-by-on-her-broom ",  // 135
    " A-World-war-two-memorial ",  // 136
    " an-American-flag-waving-in-the-breeze ",  // 137
    " An-American-soldier ",  // 138
    " An-Easter-basket-hidden-behind A-rose-bush ",  // 139
    " an-English-pub ",  // 140
    " an-ice-cream-shop ",  // 141
    " an-ice-skating-rink-filled-with-festive-skaters ",  // 142
    " an-icy-slope ",  // 143
    " an-Inn ",  // 144
    " an-Irish-Pub-filled-with-Saint-Patrick's-Day-revelers ",  // 145
    " Blarney-Castle ",  // 146
    " Children-hunting-for-Easter-Eggs-in-the-park ",  // 147
    " children-planting-trees-in A-field ",  // 148
    " Fourth-of-July-fireworks-illuminating-the-evening-sky ",  // 149
    " Fourth-of-July-picnickers ",  // 150
    " Frosty-the-snowman ",  // 151
    " Munchkin-Land ",  // 152
    " Rudolph-the-Red-nosed-Reindeer ",  // 153
    " Santa's-sleigh-with-all-eight-reindeer-flying-through-the-evening-sky ",  // 154
    " Santa-Claus-waving-from-the-North-Pole ",  // 155
    " The-Easter-bunny-hiding-eggs-in A-park ",  // 156
    " The-Emerald-City ",  // 157
    " the-Whitehouse ",  // 158
    " The-yellow-brick-road ",  // 159
    " A-cemetery ",  // 160
    " A-turkey-farm ",  // 161
    " A-cow-pasture ",  // 162
};
static_assert(std::size(vocabulary) == lastLoc + 1);

}  // namespace

void fillLocs() {
    for (int id = 0; id < locSlots; ++id)
        cs.locs[id] = id <= lastLoc ? vocabulary[id] : "";
}

}  // namespace course
