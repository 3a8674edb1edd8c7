// What the user interface kit adds to Foundation's classes: rows and sections of index paths, and the
// measuring of texts.
#pragma once

namespace phone {

void addFoundationMethods();

}  // namespace phone
