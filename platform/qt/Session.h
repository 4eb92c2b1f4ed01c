#pragma once

#include <string>

namespace wxbrg {

/// Makes sure that this thread can show windows: makes the application object at the first call, which lives
/// as long as the thread. Its own words, such as those on the buttons of a box, are of the language `tag`
/// ("DEU") where translations are installed. The locale of the C library stays as it is.
void OpenSession(const std::string& tag);

/// Opens the display and closes it again. A display that cannot be opened ends the process.
void ProbeDisplay();

}  // namespace wxbrg
