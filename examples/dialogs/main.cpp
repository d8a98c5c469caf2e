// What the program adds to the classes that are made of book.rc: rc.h and rc.cpp come
// of the first make.
#include "kesto.h"
#include "rc.h"
#include "settings/rcsettings.h"

class Person : public rcPERSON {
 public:
  int cmdRELOAD(int) {
    read();
    return 1;
  }

 private:
  void read() {}
};

class Settings : public rcSETTINGS {
 public:
  int cmdPAGES(NMHDR *) { return 1; }
};

class Book : public rcBOOK {
 public:
  int mnuADD() {
    Person person;
    return person.cmdRELOAD(0);
  }
  int mnuQUIT() {
    End(1);
    return 1;
  }
};

// A popup of its own: the macro declares what its menu calls.
class PersonMenu {
 public:
  int call(int code) {
    CallBar_PERSONMENU()
    return 0;
  }
  Menubar_PERSONMENU;
};

void PersonMenu::mnuCALL() {}

void PersonMenu::mnuREMOVE() {}
