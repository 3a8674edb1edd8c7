// The user interface kit: colours, fonts, pictures, views, tables, controls, drawing.
#pragma once

namespace phone {

/// Registers the classes and adds UIKit's methods to Foundation's. Once per process, after startFoundation().
void registerUIKit();

}  // namespace phone
