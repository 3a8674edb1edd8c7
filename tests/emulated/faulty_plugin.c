// A library for phones that does, when it is loaded, what $TAVIMO_FAULT names: mistakes that pass unseen on a
// development machine's own processor, or that would only be "crashed" there. Compiled for the phone, without any
// headers of it.
typedef struct object* id;
typedef struct selector* SEL;
typedef struct {
  double x, y, width, height;
} Rectangle;

extern void objc_msgSend(void);
extern id objc_getClass(const char* name);
extern SEL sel_registerName(const char* name);
extern id objc_allocateClassPair(id superclass, const char* name, unsigned long extra);
extern void objc_registerClassPair(id made);
extern signed char class_addMethod(id target, SEL selector, void (*implementation)(void), const char* encoding);
extern char* getenv(const char* name);
extern int puts(const char* line);
extern int strcmp(const char* left, const char* right);

typedef id (*Message)(id, SEL);
typedef id (*TextMessage)(id, SEL, const char*);
typedef const char* (*CharactersMessage)(id, SEL);
typedef id (*FixedFormat)(id, SEL, id, long);
typedef id (*VariadicFormat)(id, SEL, id, ...);
typedef void (*FlagMessage)(id, SEL, _Bool);
typedef void (*ThroughMemory)(Rectangle* result, id receiver, SEL selector);

static id send(id receiver, const char* name) {
  return ((Message)objc_msgSend)(receiver, sel_registerName(name));
}

static id text(const char* characters) {
  return ((TextMessage)objc_msgSend)(objc_getClass("NSString"), sel_registerName("stringWithUTF8String:"),
                                     characters);
}

static void say(id line) {
  puts(((CharactersMessage)objc_msgSend)(line, sel_registerName("UTF8String")));
}

static void sendsVariadicMessageAsFixed(void) {
  say(((FixedFormat)objc_msgSend)(objc_getClass("NSString"), sel_registerName("stringWithFormat:"),
                                  text("formatted %ld"), 42));
}

static void sendsVariadicMessage(void) {
  say(((VariadicFormat)objc_msgSend)(objc_getClass("NSString"), sel_registerName("stringWithFormat:"),
                                     text("formatted %ld"), 42L));
}

// As x86-64 returns a rectangle, and this processor does not.
static void takesRectangleThroughMemory(void) {
  Rectangle frame;
  id view = send(send(objc_getClass("UIView"), "alloc"), "init");
  ((ThroughMemory)objc_msgSend)(&frame, view, sel_registerName("frame"));
  if (frame.width == 0) puts("it has a width");
}

static void seesWholeRegister(id self, SEL selector, unsigned long flag) {
  puts(flag == 0xdeadbeef00000001 ? "there is rubbish beside the flag" : "there is a plain flag");
}

static void seesFlag(id self, SEL selector, _Bool flag) { puts(flag ? "the flag is on" : "the flag is off"); }

static void getsFlags(void) {
  id made = objc_allocateClassPair(objc_getClass("NSObject"), "FlagReader", 0);
  class_addMethod(made, sel_registerName("register:"), (void (*)(void))seesWholeRegister, "v@:B");
  class_addMethod(made, sel_registerName("flag:"), (void (*)(void))seesFlag, "v@:B");
  objc_registerClassPair(made);
  id reader = send(send(made, "alloc"), "init");
  ((FlagMessage)objc_msgSend)(reader, sel_registerName("register:"), 1);
  ((FlagMessage)objc_msgSend)(reader, sel_registerName("flag:"), 0);
}

static void overrunsItsLocals(void) {
  volatile char locals[16];
  for (volatile int i = 0; i < 32; ++i) locals[i] = 'x';
}

static void sendsToFreedObject(void) {
  id object = send(send(objc_getClass("NSObject"), "alloc"), "init");
  send(object, "release");
  send(object, "description");
}

static void jumpsWild(void) { ((void (*)(void))0x1230)(); }

#if defined(WITH_MISSING_IMPORT)
extern void noSuchFunction(void);
static void callsWhatNobodyOffers(void) { noSuchFunction(); }
#endif

__attribute__((constructor)) static void start(void) {
  static const struct {
    const char* name;
    void (*commit)(void);
  } faults[] = {
      {"fixed", sendsVariadicMessageAsFixed},
      {"variadic", sendsVariadicMessage},
      {"rectangle", takesRectangleThroughMemory},
      {"flags", getsFlags},
      {"stack", overrunsItsLocals},
      {"freed", sendsToFreedObject},
      {"wild", jumpsWild},
#if defined(WITH_MISSING_IMPORT)
      {"missing", callsWhatNobodyOffers},
#endif
  };
  const char* wanted = getenv("TAVIMO_FAULT");
  for (unsigned i = 0; wanted != 0 && i < sizeof(faults) / sizeof(faults[0]); ++i) {
    if (strcmp(wanted, faults[i].name) == 0) faults[i].commit();
  }
}
