// The file methods of NSDictionary and NSArray.
#pragma once

namespace phone {

/// Makes initWithContentsOfFile: and writeToFile:atomically: of all dictionaries and arrays (with them the
/// ...WithContentsOfFile: class methods) read and write property lists as the phone does, below the phone
/// root. Doing it again changes nothing.
void installPropertyListFiles();

}  // namespace phone
