// URLs as the phone reads them.
#pragma once

namespace phone {

/// Makes NSURL accept a query that stands directly behind the host, such as
/// fantastical2://show?date=2014-3-7, which GNUstep refuses. Such a URL gives its text back unchanged. Doing
/// it again changes nothing.
void mendUrls();

}  // namespace phone
