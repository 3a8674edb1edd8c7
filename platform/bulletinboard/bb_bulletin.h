// A notification record.
#pragma once

#include "platform/foundation/ns_object.h"

class BBAction;
class NSDate;

class BBBulletin : public NSObject {
 public:
  BBBulletin() = delete;

  NSString* bulletinID() { return objc::send<"bulletinID", NSString*>(this); }
  NSString* section() { return objc::send<"section", NSString*>(this); }
  NSString* title() { return objc::send<"title", NSString*>(this); }
  NSString* message() { return objc::send<"message", NSString*>(this); }
  NSString* subtitle() { return objc::send<"subtitle", NSString*>(this); }
  bool showsMessagePreview() { return objc::send<"showsMessagePreview", bool>(this); }
  bool dateIsAllDay() { return objc::send<"dateIsAllDay", bool>(this); }
  NSDate* date() { return objc::send<"date", NSDate*>(this); }
  NSDate* endDate() { return objc::send<"endDate", NSDate*>(this); }
  BBAction* defaultAction() { return objc::send<"defaultAction", BBAction*>(this); }
  NSDate* publicationDate() { return objc::send<"publicationDate", NSDate*>(this); }
  NSDate* lastInterruptDate() { return objc::send<"lastInterruptDate", NSDate*>(this); }
  void setTitle(NSString* title) { objc::send<"setTitle:">(this, title); }
  void setMessage(NSString* message) { objc::send<"setMessage:">(this, message); }
  void setShowsMessagePreview(bool shows) { objc::send<"setShowsMessagePreview:">(this, shows); }
  void setSubtitle(NSString* subtitle) { objc::send<"setSubtitle:">(this, subtitle); }
  void setDateIsAllDay(bool allDay) { objc::send<"setDateIsAllDay:">(this, allDay); }
  void setDate(NSDate* date) { objc::send<"setDate:">(this, date); }
  void setEndDate(NSDate* date) { objc::send<"setEndDate:">(this, date); }
  void setSection(NSString* section) { objc::send<"setSection:">(this, section); }
  void setDefaultAction(BBAction* action) { objc::send<"setDefaultAction:">(this, action); }
  void setPublicationDate(NSDate* date) { objc::send<"setPublicationDate:">(this, date); }
  void setLastInterruptDate(NSDate* date) { objc::send<"setLastInterruptDate:">(this, date); }
  void setBulletinID(NSString* identifier) { objc::send<"setBulletinID:">(this, identifier); }
};
