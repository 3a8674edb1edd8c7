#include "phone/uikit/font_map.h"

#include <fontconfig/fontconfig.h>
#include <pango/pangocairo.h>
#include <stdexcept>

namespace phone {

namespace {

// Only these files count. Of the families with hundreds of files, those that the phone's texts need are
// named one by one: the fewer there are, the faster a missing character finds its font.
constexpr const char* kConfiguration = R"(<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts/opentype/inter</dir>
  <dir>/usr/share/fonts/opentype/noto</dir>
  <dir>/usr/share/fonts/truetype/noto</dir>
  <cachedir>/var/cache/fontconfig</cachedir>
  <cachedir prefix="xdg">fontconfig</cachedir>
  <selectfont>
    <rejectfont><glob>/usr/share/fonts/*</glob></rejectfont>
    <acceptfont><glob>*/inter/Inter-Thin.otf</glob></acceptfont>
    <acceptfont><glob>*/inter/Inter-Light.otf</glob></acceptfont>
    <acceptfont><glob>*/inter/Inter-Regular.otf</glob></acceptfont>
    <acceptfont><glob>*/inter/Inter-Medium.otf</glob></acceptfont>
    <acceptfont><glob>*/inter/Inter-SemiBold.otf</glob></acceptfont>
    <acceptfont><glob>*/inter/Inter-Bold.otf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSans-Regular.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSans-Bold.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansArabic-Regular.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansArabic-Bold.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansHebrew-Regular.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansHebrew-Bold.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansThai-Regular.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansThai-Bold.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansDevanagari-Regular.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansDevanagari-Bold.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansBengali-Regular.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansBengali-Bold.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansTamil-Regular.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansTamil-Bold.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansArmenian-Regular.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansArmenian-Bold.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansGeorgian-Regular.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansGeorgian-Bold.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansEthiopic-Regular.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansEthiopic-Bold.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansSymbols-Regular.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansSymbols-Bold.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansSymbols2-Regular.ttf</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansCJK-Regular.ttc</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoSansCJK-Bold.ttc</glob></acceptfont>
    <acceptfont><glob>*/noto/NotoColorEmoji.ttf</glob></acceptfont>
  </selectfont>
  <match target="pattern">
    <edit name="family" mode="append_last" binding="strong">
      <string>Inter</string><string>Noto Sans</string>
    </edit>
  </match>
  <!-- Chinese, Japanese and Korean share characters that each writes in its own form. -->
  <match target="pattern">
    <test name="lang" compare="contains"><string>ja</string></test>
    <edit name="family" mode="append_last" binding="strong"><string>Noto Sans CJK JP</string></edit>
  </match>
  <match target="pattern">
    <test name="lang" compare="contains"><string>ko</string></test>
    <edit name="family" mode="append_last" binding="strong"><string>Noto Sans CJK KR</string></edit>
  </match>
  <match target="pattern">
    <edit name="family" mode="append_last" binding="strong"><string>Noto Sans CJK SC</string></edit>
  </match>
  <match target="pattern">
    <test name="family"><string>emoji</string></test>
    <edit name="family" mode="prepend" binding="strong"><string>Noto Color Emoji</string></edit>
  </match>
  <match target="font">
    <!-- Colour emoji are pictures of one size; drawn at another they are scaled. -->
    <test name="outline"><bool>false</bool></test>
    <edit name="embeddedbitmap" mode="assign"><bool>true</bool></edit>
    <edit name="pixelsizefixupfactor" mode="assign">
      <divide><name target="pattern">pixelsize</name><name target="font">pixelsize</name></divide>
    </edit>
    <edit name="matrix" mode="assign">
      <times>
        <name>matrix</name>
        <matrix>
          <name>pixelsizefixupfactor</name><double>0</double>
          <double>0</double><name>pixelsizefixupfactor</name>
        </matrix>
      </times>
    </edit>
    <edit name="size" mode="assign">
      <divide><name>size</name><name>pixelsizefixupfactor</name></divide>
    </edit>
  </match>
  <match target="font">
    <!-- Not for the emoji: smoothed, Cairo does not draw them. -->
    <test name="outline"><bool>true</bool></test>
    <edit name="antialias" mode="assign"><bool>true</bool></edit>
    <edit name="hinting" mode="assign"><bool>false</bool></edit>
    <edit name="hintstyle" mode="assign"><const>hintnone</const></edit>
    <edit name="autohint" mode="assign"><bool>false</bool></edit>
    <edit name="rgba" mode="assign"><const>none</const></edit>
    <edit name="lcdfilter" mode="assign"><const>lcdnone</const></edit>
  </match>
</fontconfig>
)";

bool hasSystemFont(FcConfig* configuration) {
  const FcFontSet* const fonts = FcConfigGetFonts(configuration, FcSetSystem);
  for (int i = 0; fonts != nullptr && i < fonts->nfont; ++i) {
    FcChar8* family = nullptr;
    FcPatternGetString(fonts->fonts[i], FC_FAMILY, 0, &family);
    if (family != nullptr && FcStrCmp(family, reinterpret_cast<const FcChar8*>(kSystemFontFamily)) == 0) {
      return true;
    }
  }
  return false;
}

void useOwnConfiguration() {
  FcConfig* const configuration = FcConfigCreate();
  const auto* const text = reinterpret_cast<const FcChar8*>(kConfiguration);
  if (!FcConfigParseAndLoadFromMemory(configuration, text, FcTrue) || !FcConfigBuildFonts(configuration)) {
    throw std::runtime_error("the font configuration cannot be loaded");
  }
  if (!hasSystemFont(configuration)) {
    throw std::runtime_error("the phone's fonts are not installed; scripts/setup installs them");
  }
  // Pango starts the process-wide configuration even when it is given another one; so ours is that one.
  FcConfigSetCurrent(configuration);
  FcConfigDestroy(configuration);
}

PangoFontMap* makeFontMap() {
  useOwnConfiguration();
  PangoFontMap* const map = pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT);
  pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(map), 72);
  return map;
}

}  // namespace

PangoFontMap* fontMap() {
  static PangoFontMap* const map = makeFontMap();
  return map;
}

}  // namespace phone
