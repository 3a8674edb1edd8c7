// What a tap on a record does.
#pragma once

#include "platform/foundation/ns_object.h"

class NSURL;

class BBAction : public NSObject {
 public:
  BBAction() = delete;

  /// An action that opens a URL; `callback` may be nil.
  static BBAction* actionWithLaunchURL(NSURL* url, id callback) {
    return objc::sendToClass<BBAction, "actionWithLaunchURL:callblock:", BBAction*>(url, callback);
  }
  /// An action that opens the application with that identifier; `callback` may be nil.
  static BBAction* actionWithLaunchBundleID(NSString* bundleID, id callback) {
    return objc::sendToClass<BBAction, "actionWithLaunchBundleID:callblock:", BBAction*>(bundleID, callback);
  }
  /// Nil unless the action opens a URL.
  NSURL* launchURL() { return objc::send<"launchURL", NSURL*>(this); }
  /// Nil unless the action opens an application.
  NSString* launchBundleID() { return objc::send<"launchBundleID", NSString*>(this); }
};
