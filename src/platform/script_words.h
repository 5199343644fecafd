// The words of a greenlark-sim script and transcript that both platforms
// write: quoted texts and key names. The simulated platform reads them; the
// real one writes them into a game journal.
#pragma once

#include <string>

namespace platform::script {

// A text in double quotes: \" \\ \r \n escaped, every other byte below 32
// as \xHH, all else as it is.
std::string quote(const std::string& text);

// The key code of a key name such as Enter, F4, Num3, Comma or #190; -1 if
// it is no key name.
int keyCode(const std::string& name);

// The name keyCode reads back as code: Enter, J, F10, Num3, or #190 for a
// key without a name.
std::string keyName(int code);

}  // namespace platform::script
