// Reads one resource script in three passes, for its identifiers, its menus and its
// dialogs, and hands what it finds to the emitter. Forgiving: a line says something only
// by a few words at fixed places, and whatever else it holds is passed over. Lines longer
// than the buffer are read in pieces. Some 110 KB: not for the stack. Any thread.
#pragma once

#include <string_view>

#include "addon/foundation/name_table.h"
#include "addon/rcgen/dialog_emitter.h"
#include "addon/rcgen/rc_tables.h"

namespace kesto {

class RcReader {
 public:
  // Nothing is kept from one script to the next.
  void read(std::string_view script, DialogEmitter& emitter);

 private:
  void readDefines(std::string_view script);
  void readMenus(std::string_view script);
  void readDialogs(std::string_view script, DialogEmitter& emitter);
  void readMenuItem(std::string_view line, std::string_view menu);
  void readControl(std::string_view line);
  // False: a line of the dialog that ends it.
  bool readDialogLine(std::string_view line);
  // Opens the dialog that the line names; false when it names none to be read.
  bool openDialog(std::string_view line, DialogEmitter& emitter);
  // The first of that name; null when there is none.
  const RcDefine* findDefine(std::string_view name) const;

  RcTable<RcDefine> defines_;
  NameTable<std::string_view, const RcDefine*> defines_by_name_;  // the first of each
  RcTable<RcMenuItem> menu_items_;
  RcDialog dialog_;
};

}  // namespace kesto
