#pragma once

#include <string>
#include <vector>

namespace wxbrg::cli {

/// A model of a small ARIS XML export, with one function in it.
struct SmallModel {
    std::string guid;
    std::string name;
    std::string type = "MT_EEPC";
    std::string assigned = {};  ///< Guids of models assigned to the function, with blanks between
};

/// An ARIS XML export in the languages 1033 and 1031, of the database "Small" by the user "modeller". The
/// models stand in the group "Sales", which stands in the root group; all texts are the same in both
/// languages.
inline std::string SmallExport(const std::vector<SmallModel>& models) {
    const auto name = [](const std::string& text) {
        return R"(<AttrDef AttrDef.Type="AT_NAME"><AttrValue LocaleId="1033">)" + text +
               R"(</AttrValue><AttrValue LocaleId="1031">)" + text + "</AttrValue></AttrDef>\n";
    };
    std::string definitions;
    std::string shown;
    for (const SmallModel& model : models) {
        const std::string id = model.guid;
        definitions += R"(<ObjDef ObjDef.ID="ObjDef.)" + id + R"(" TypeNum="OT_FUNC" LinkedModels.IdRefs=")" +
                       model.assigned + R"("><GUID>f)" + id + "</GUID>" + name("Check order") + "</ObjDef>\n";
        shown += R"(<Model Model.ID=")" + id + R"(" Model.Type=")" + model.type + R"("><GUID>)" + id +
                 "</GUID>" + name(model.name) + R"(<ObjOcc ObjOcc.ID="ObjOcc.)" + id +
                 R"(" ObjDef.IdRef="ObjDef.)" + id +
                 R"(" SymbolNum="ST_FUNC"><Position Pos.X="100" Pos.Y="200"/>)" + "</ObjOcc></Model>\n";
    }
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<AML>
<Header-Info DatabaseName="Small" UserName="modeller"/>
<Language LocaleId="1033"><LanguageName>English</LanguageName></Language>
<Language LocaleId="1031"><LanguageName>German</LanguageName></Language>
<Group Group.ID="Group.Root"><Group Group.ID="Group.1"><GUID>g1</GUID>)" +
           name("Sales") + definitions + shown + "</Group></Group>\n</AML>\n";
}

}  // namespace wxbrg::cli
