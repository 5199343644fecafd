// Which recipe makes which file, and how it is finished.
#pragma once

#include <string>

#include "finish.h"
#include "job.h"

namespace wavegen {

using Maker = Samples (*)(Job&);

struct Recipe {
    const char* name;
    Maker make;
    Finish finish;
};

// The recipe for a file name, or nullptr.
const Recipe* recipeFor(const std::string& name);

}  // namespace wavegen
