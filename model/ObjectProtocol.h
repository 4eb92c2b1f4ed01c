#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "aris/Repository.h"
#include "mapping/NameConversion.h"
#include "mapping/RelatedObjectSearch.h"
#include "mapping/RuleLookups.h"
#include "mapping/StringLists.h"
#include "run/Frame.h"
#include "run/LogLine.h"
#include "run/clsExceptionHandler.h"
#include "run/modGlobals.h"
#include "support/Collection.h"

/// The protocol that all kinds of workflow objects share: how a batch of a kind is found and
/// filled, how one object is created on demand, and how its properties are filled from ARIS. What differs
/// from kind to kind (names of procedures, rules and kinds, the gate of an option) comes as data.
///
/// An object passes through: registered under the Guid of its ARIS item with no properties, being filled,
/// finished. That it is registered before it is filled is what ends circles of references.
namespace wxbrg {

/// Text in the single quotes of the output.
std::string Quoted(std::string_view text);

/// The note 3060: an object has been mapped to a kind.
void NoteMapped(const ARISObjDef& item, std::string_view kind);

/// The note 3000 with its two words, and 3030 for each related object behind the first, where there is more
/// than one: only the first counts.
void NoteFurtherIgnored(const Collection<ARISObjDef>& related, std::string_view first,
                        std::string_view second);

// The words of a kind.

/// The words of a kind's creation on demand.
struct MappingWords {
    std::string_view procedure;
    std::string_view rule;           ///< to which the object has to conform
    std::string_view kind;           ///< in the note 3060
    std::string_view kindInFailure;  ///< in the failure 2120
};

/// The words of a kind whose module has the usual four procedures and whose name is that of its rule.
struct KindWords {
    std::string_view kind;
    std::string_view find;  ///< names of the procedures, from here on
    std::string_view setup;
    std::string_view create;
    std::string_view add;

    constexpr MappingWords OnDemand() const { return {add, kind, kind, kind}; }
};

// A batch.

/// Finds the objects of a kind in the models and registers a new workflow object for each, without filling
/// it. An object that is registered already stays, and is noted once more.
template <class Object>
void FindBatch(const KindWords& words, const Collection<ARISModel>& models,
               Collection<Ref<Object>>& registry) {
    Procedure(words.find, [&](Frame&) {
        Collection<ARISObjDef> found;
        for (const ARISObjDef& item : Find_ARIS_ObjDef_Using_Mapping_Rule(models, found, words.kind)) {
            const Ref<Object> object = gBlock.gPool.Create<Object>();
            object->ARISObjectDefinition = item;
            registry.AddNew(object, item->Guid());
            NoteMapped(item, words.kind);
        }
    });
}

/// Fills every object of a registry, those that join it on the way too.
template <class Object>
void SetupBatch(std::string_view procedure, const Collection<Ref<Object>>& registry) {
    Procedure(procedure, [&](Frame&) {
        for (const Ref<Object>& object : registry) object->SetupProperties();
    });
}

/// Finds and fills.
template <class Object>
void CreateBatch(const KindWords& words, const Collection<ARISModel>& models,
                 Collection<Ref<Object>>& registry) {
    Procedure(words.create, [&](Frame&) {
        FindBatch(words, models, registry);
        SetupBatch(words.setup, registry);
    });
}

// One object on demand.

/// The workflow object of an ARIS object: the registered one, finished or not, else a new one, registered and
/// then filled. An object that does not conform to the kind's rule ends the run with 2120. `prepare` is
/// called for a new object before it is registered; one that it registers itself leaves no object here.
template <class Object, class Prepare>
Ref<Object> AddARISMapping(const MappingWords& words, const ARISObjDef& item,
                           Collection<Ref<Object>>& registry, Prepare&& prepare) {
    return Procedure(words.procedure, [&](Frame& frame) -> Ref<Object> {
        if (!ARIS_ObjDef_Conforms_To_Mapping_Rule(item, words.rule))
            frame.Raise(Message::objectOfWrongKind, item->Type(), item->Name(gBlock.gLocale),
                        words.kindInFailure);
        if (ARIS_ObjDefIsMemberOfCollection(item, registry)) return registry.Item(item->Guid());
        const Ref<Object> object = gBlock.gPool.Create<Object>();
        object->ARISObjectDefinition = item;
        prepare(*object);
        if (!registry.AddNew(object, item->Guid())) {
            frame.KeepName();  // this way out restores no name
            return nullptr;
        }
        object->SetupProperties();
        NoteMapped(item, words.kind);
        return object;
    });
}

template <class Object>
Ref<Object> AddARISMapping(const MappingWords& words, const ARISObjDef& item,
                           Collection<Ref<Object>>& registry) {
    return AddARISMapping(words, item, registry, [](Object&) {});
}

// Filling.

/// Fills an object once: the steps, then the note 3090 with the kind and the printed name, then the flag.
template <class Steps>
void SetupOnce(std::string_view procedure, bool& finished, std::string_view kind,
               const std::string& printedName, Steps&& steps) {
    Procedure(procedure, [&](Frame&) {
        if (finished) return;
        steps();
        WriteNote(Message::propertiesComplete, kind, printedName);
        finished = true;
    });
}

/// Fills a text property: the text that `read` gives, converted and quoted; an empty text leaves the property
/// as it is. Nothing is read with the gate shut.
template <class Read>
void SetupText(std::string_view procedure, std::string& property, bool gate, NameKind nameKind, Read&& read) {
    Procedure(procedure, [&](Frame&) {
        if (!gate) return;
        const std::string text = read();
        if (!text.empty()) property = Quoted(ConvertARISName(text, nameKind, ""));
    });
}

/// Fills a settings property: the text as read, without conversion and quotes.
template <class Read>
void SetupSettings(std::string_view procedure, std::string& property, Read&& read) {
    Procedure(procedure, [&](Frame&) {
        if (!gBlock.gOptUseOtherSettings) return;
        std::string text = read();
        if (!text.empty()) property = std::move(text);
    });
}

/// The same two for the attribute of a rule on an object definition.
void SetupText(std::string_view procedure, std::string& property, bool gate, NameKind nameKind,
               const ARISObjDef& item, std::string_view rule);
void SetupSettings(std::string_view procedure, std::string& property, const ARISObjDef& item,
                   std::string_view rule);

// Neighbours.

/// The printed name of a neighbour without its quotes; nothing where it has none and is passed over.
using NeighbourName = std::optional<std::string> (*)(const ARISObjDef& item);

/// The identifier of a person.
std::optional<std::string> NameOfPerson(const ARISObjDef& item);
/// The name in the run's locale, converted as an object name.
std::optional<std::string> NameOfObject(const ARISObjDef& item);
/// The attribute of the organization's, role's or program's name rule, converted as an object name.
std::optional<std::string> NameOfOrganization(const ARISObjDef& item);
std::optional<std::string> NameOfRole(const ARISObjDef& item);
std::optional<std::string> NameOfProgram(const ARISObjDef& item);

/// A property that points to neighbours.
struct NeighbourProperty {
    std::string_view procedure;
    std::string_view rule;  ///< which leads to the neighbours
    NeighbourName name;
    std::string_view firstWord;  ///< of the note 3000; unused for a list
    std::string_view secondWord;
};

/// Fills a property that points to one neighbour: the first that the rule leads to, which `add` brings into
/// its registry. Further ones are noted and ignored.
template <class Add>
void SetupNeighbour(const NeighbourProperty& words, const ARISObjDef& item, std::string& property,
                    Add&& add) {
    Procedure(words.procedure, [&](Frame&) {
        Collection<ARISObjDef> related;
        Find_Related_ARIS_ObjDef_Using_Mapping_Rule(related, item, words.rule);
        if (related.IsEmpty()) return;
        const ARISObjDef first = related.Item(1);
        if (const std::optional<std::string> name = words.name(first)) {
            property = Quoted(*name);
            add(first);
        }
        NoteFurtherIgnored(related, words.firstWord, words.secondWord);
    });
}

/// Fills a property that lists neighbours: the quoted names of all that have one, with one blank between.
template <class Add>
void SetupNeighbours(const NeighbourProperty& words, const ARISObjDef& item, std::string& property,
                     Add&& add) {
    Procedure(words.procedure, [&](Frame&) {
        Collection<ARISObjDef> related;
        for (const ARISObjDef& neighbour :
             Find_Related_ARIS_ObjDef_Using_Mapping_Rule(related, item, words.rule)) {
            const std::optional<std::string> name = words.name(neighbour);
            if (!name) continue;
            property.append(property.empty() ? "" : " ").append(Quoted(*name));
            add(neighbour);
        }
    });
}

}  // namespace wxbrg
