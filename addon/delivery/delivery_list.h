// Which files are delivered: those whose delivered copy is missing or differs by a byte.
// Times play no part. Plain code; any thread.
#pragma once

#include <string>

#include "addon/delivery/one_del_rep.h"
#include "addon/delivery/project_options.h"
#include "addon/foundation/tableau.h"
#include "addon/ide/copy_files.h"

namespace kesto {

// Looks on while files are compared.
class CompareWatch {
 public:
  virtual ~CompareWatch() = default;
  // False ends the comparing.
  virtual bool goOn() = 0;
};

// Where a group's file goes.
std::string deliveredPath(const OneDelRep& group, const String& source);

// The first group whose directory is not there, active or not; null when all are.
const OneDelRep* groupWithoutDirectory(const Tableau<OneDelRep>& groups, CopyFiles& files);

// Appends a record for each node whose file needs delivery, in their order; the records
// point at the groups. False when the watch ended it.
bool listDeliveries(const std::vector<DeliveryNode>& nodes, const Tableau<OneDelRep>& groups,
                    CopyFiles& files, CompareWatch& watch, Tableau<Livrage>& deliveries);

}  // namespace kesto
