#include "course/catalogue.h"
#include "course/course.h"
#include "course/customfile.h"
#include "platform/platform.h"

namespace course {

void GetCusCors(const std::string& kp, int c) {
    if (c < 1 || c >= catSlots) throw platform::Failure("no such catalogue entry");
    const std::string& name = cs.cfile[c];
    for (int hole = 1; hole <= 18; ++hole) cs.HS[hole][1] = cs.HS[hole][2] = "";
    bool gcx = isgcx(name);
    cs.fox = gcx ? 2 : 1;
    HoleData d = readcourse(platform::os().readFile(kp + "/" + name), gcx, name);
    for (int hole = 1; hole <= 18; ++hole) {
        for (int k = 1; k <= 7; ++k) cs.H[hole][k] = d.H[hole][k];
        cs.partag[hole] = d.partag[hole];
        cs.HS[hole][1] = d.HS[hole][1];
        cs.HS[hole][2] = d.HS[hole][2];
        if (gcx) cs.HF[hole] = d.HF[hole];
    }
}

}  // namespace course
