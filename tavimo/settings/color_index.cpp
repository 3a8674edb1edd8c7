#include "tavimo/settings/color_index.h"

namespace tavimo {

UIColor* namedColorOfIndex(NSInteger index) {
  switch (index) {
    case 0:
      return UIColor::redColor();
    case 1:
      return UIColor::blackColor();
    case 2:
      return UIColor::grayColor();
    case 4:
      return UIColor::greenColor();
    case 5:
      return UIColor::blueColor();
    case 6:
      return UIColor::yellowColor();
    case 7:
      return UIColor::orangeColor();
    case 8:
      return UIColor::purpleColor();
    case 9:
      return UIColor::brownColor();
    default:
      return UIColor::whiteColor();
  }
}

UIColor* dateColorOfIndex(NSInteger index) {
  switch (index) {
    case 1:
      return UIColor::colorWithRed(0.01, 0.01, 0.01, 1.0);
    case 2:
      return UIColor::colorWithWhite(1.0, 0.5);
    default:
      return namedColorOfIndex(index);
  }
}

}  // namespace tavimo
