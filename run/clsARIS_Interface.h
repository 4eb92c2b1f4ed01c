#pragma once

#include <string>
#include <string_view>

#include "aris/Repository.h"
#include "support/Collection.h"

namespace wxbrg {

/// The connection with ARIS: what the command line says, the open database and the selected models.
class clsARIS_Interface {
  public:
    clsARIS_Interface();

    std::string sUser;
    std::string sDatabase;
    std::string sServer;
    std::string sRegistry;  ///< passed on to ARIS and never read
    std::string
        sSelection;  ///< items separated by ";", each a Guid, a name and a type number with "," between
    ARISApplication oApplication;
    ARISReportComponent oReportComponent;
    ARISDatabase Database;
    Collection<ARISModel> ColSelectedModels;  ///< by Guid, in the order of the selection

    /// Takes the switches apart and sets `gLocale`. Ends the run with 13 for a /LOC that is no number, with 6
    /// for one outside 16 bits.
    void SaveCommandlineArguments();

    /// Starts ARIS, opens the database and finds the selected models. A model that is not in the database is
    /// passed over. Ends the run with 2010 when ARIS is not there, with 2020 for a selection that is wrong or
    /// that nothing remains of, with 457 for a model that is selected twice.
    void RetrieveSelectedARISModels();

    /// The value of a switch such as "/DB" (upper case), as typed; empty where there is none. A value runs up
    /// to the next "/". Fails in the caller's frame with 6 for a command line beyond 32,767 characters.
    static std::string GetCommandLine(std::string_view Switch);

  private:
    /// Adds the model of one item of the selection; false when the item is wrong.
    bool AddSelectedModel(const std::string& item);
    /// Adds all selected models; false, with the item at fault, when one is wrong.
    bool AddSelectedModels(std::string& item);
};

}  // namespace wxbrg
