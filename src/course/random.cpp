#include <cmath>
#include <cstdint>

#include "course/catalogue.h"
#include "course/course.h"
#include "platform/platform.h"
#include "platform/rnd.h"

namespace course {

namespace {

// floor(U * n) + from: a whole number from `from` to from + n - 1.
int draw(int n, int from) { return int(std::floor(platform::U() * n)) + from; }

int parOf(int yards) {
    int par = 3;
    if (yards > 333) par = 4;
    if (yards > 444) par = 5;
    if (yards > 555) par = 6;
    return par;
}

}  // namespace

void setrandomcourse() {
    platform::reseedFromClock();
    for (int hole = 1; hole <= 18; ++hole) {
        int* h = cs.H[hole];
        h[2] = draw(555, 125);
        h[1] = parOf(h[2]);
        h[3] = draw(54, 2);
        do {
            h[4] = draw(54, 2);
        } while (h[4] == h[3]);
        h[5] = 5 * draw(17, 2);
        h[6] = 6;
        h[7] = 3;
        cs.partag[hole] = 2;
    }
    cs.fox = 1;
}

}  // namespace course
