// The framework's class definitions; uikit.cpp registers them in order.
#pragma once

#include "phone/objc/class_definition.h"

namespace phone {

ClassDefinition uiAlertView();
ClassDefinition uiApplication();
ClassDefinition uiColor();
ClassDefinition uiControl();
ClassDefinition uiFont();
ClassDefinition uiGestureRecognizer();
ClassDefinition uiImage();
ClassDefinition uiImageView();
ClassDefinition uiLabel();
ClassDefinition uiResponder();
ClassDefinition uiScreen();
ClassDefinition uiScrollView();
ClassDefinition uiSwitch();
ClassDefinition uiTableView();
ClassDefinition uiTableViewCell();
ClassDefinition uiTapGestureRecognizer();
ClassDefinition uiView();
ClassDefinition uiViewController();
ClassDefinition uiWindow();

}  // namespace phone
