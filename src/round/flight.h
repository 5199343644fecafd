// The flight of a ball: how far it went, how far off line, where it came
// down, and the report of the shot.
#pragma once

#include <string>

namespace play {

// A clean swing: the strike sounds, then carry.
void strikeball();
// The distance of the swing and the wait of the flight, then landball.
void carry();
// Off line, the yards left, and the landing zone's exit.
void landball();
// The last shot's figures, spoken; also the F2 reply in play.
void shotreport();
std::string shotreporttext();

// ---- the figures, with the uniform draw u given
// Full-swing yards of a club value: floored before any swing fraction.
int fullcarry(int dirty, double club, double u);
// The yards of a swing at fraction pw.
int swingcarry(int full, double pw);
// Yards off line; the angle is in radians.
double offline(int yds, int dirty, double u);
// Yards from the green after the shot: the long side of the triangle.
int landing(double offl, int togo, int yds);
// A ball past the green by 20 yards or more draws the warning.
bool overthegreen(int togo, int yds, int remain);

enum class Zone { open, greenside, green, hole };
Zone zone(int remain);

// The ball counts as on the fairway inside this margin.
bool onfairway(double offl, int fairw, int dirty, double pw);

}  // namespace play
