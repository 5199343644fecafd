#include "course/course.h"

namespace course {

Course cs;

}  // namespace course
