#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "aris/Catalogue.h"
#include "aris/xml/References.h"
#include "aris/xml/TextArena.h"
#include "aris/xml/TypeResolver.h"
#include "aris/xml/XmlItems.h"

namespace wxbrg::xml {

/// A whole export in memory: the items in the order of the file, and the indexes over them. Its items refer
/// to it: it stays where it is made.
struct AmlStore {
    explicit AmlStore(TypeTable table) : types(std::move(table)) {}
    AmlStore(const AmlStore&) = delete;
    AmlStore& operator=(const AmlStore&) = delete;

    /// The handle of an attribute that an item has no value of; lives as long as the store.
    ARISAttr Unmaintained(std::int32_t attrTypeNum) const;

    std::string databaseName;  ///< empty where the export does not say
    std::string userName;      ///< likewise
    std::vector<aris::Locale> locales;

    TypeResolver types;
    TextArena texts;

    std::vector<XmlAttribute> values;  ///< those of an item together, in the order of `StandsBefore`
    std::vector<XmlGroup> groups;
    std::vector<XmlModel> models;
    std::vector<XmlObjDef> definitions;
    std::vector<XmlObjOcc> occurrences;                          ///< those of a model together
    std::vector<XmlCxnDef> connections;                          ///< those of a source together
    XmlGroup noGroup{ItemData{this, {}, {}}, References::none};  ///< around models that are in no group

    std::vector<ARISModel> modelList;
    std::vector<ARISObjDef> definitionsOfModels;  ///< by model, type number, order of the file; each once
    std::vector<ARISObjOcc> occurrencesOfDefinitions;  ///< by definition, model, order of the file
    std::vector<ARISCxnDef> outgoing;                  ///< by source, type number, order of the file
    std::vector<ARISCxnDef> incoming;                  ///< by target, type number, order of the file
    std::vector<ARISModel> assignedModels;             ///< by definition, in its order
    std::vector<ARISCxnOcc> connectionOccurrences;     ///< as many as the most drawn connection has

    std::vector<aris::UnknownType> unknownTypes;
    aris::DanglingReferences dangling;

  private:
    struct NoValue {
        ResolvedType type;
        XmlAttribute attribute;
        NoValue(std::int32_t number, std::string name)
            : type{number, std::move(name)}, attribute(type, 0, 0, {}) {}
        NoValue(const NoValue&) = delete;
        NoValue& operator=(const NoValue&) = delete;
    };
    mutable std::map<std::int32_t, NoValue> unmaintained_;  // made when asked for
};

}  // namespace wxbrg::xml
