#pragma once

#include "aris/Repository.h"
#include "support/Collection.h"

namespace wxbrg {

/// The export itself, from the options to the finished file.
class clsWPX_Export {
  public:
    /// Asks for options and output file, loads the rules, builds all objects from the selected models and all
    /// they lead to, and writes the definition file.
    void Run();

    /// Builds the objects of a batch of models, kind by kind. Returns the models that the batch was found to
    /// need and that have no process yet.
    Collection<ARISModel> CreateWPXObjects(const Collection<ARISModel>& ColARISModels);
};

}  // namespace wxbrg
