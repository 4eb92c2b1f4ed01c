#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "aris/xml/AmlStore.h"
#include "aris/xml/References.h"

namespace wxbrg::xml {

/// Collects what an export holds, in the order of the file, and makes the store of it at the end, when every
/// reference can be resolved. What refers to nothing is left out and counted.
///
/// Begin and End of groups nest; no other item lies between those of a definition or a model.
class AmlBuilder {
  public:
    explicit AmlBuilder(TypeTable types);

    TypeResolver& Types() { return store_->types; }

    void SetDatabase(std::string_view name, std::string_view user);
    /// A language that is there already is passed over.
    void AddLocale(std::int32_t number, std::string_view name);

    void BeginGroup(std::string_view id);
    void BeginDefinition(std::string_view id, const ResolvedType& type, const ResolvedType* symbol);
    void BeginModel(std::string_view id, const ResolvedType& type);
    void EndGroup();
    void EndDefinition();
    void EndModel();

    /// Of the innermost item. A second Guid is passed over; without one the item's id stands for it.
    void SetGuid(std::string_view guid);
    /// Of the innermost item. A second value of an attribute in a locale is passed over.
    void AddValue(const ResolvedType& type, std::int32_t locale, std::string_view text);

    /// Of the definition.
    void AddAssignedModel(std::string_view modelId);
    void AddConnection(std::string_view id, const ResolvedType& type, std::string_view targetId);

    /// Of the model, at 0, 0. A `symbol` of null is the definition's.
    void AddOccurrence(std::string_view definitionId, const ResolvedType* symbol);
    /// Of the occurrence that was added last.
    void SetPosition(std::int32_t x, std::int32_t y);
    /// Of a connection anywhere.
    void AddConnectionOccurrence(std::string_view connectionId);

    /// The store. The builder is used up.
    std::unique_ptr<AmlStore> Finish();

  private:
    struct OpenItem {
        std::uint32_t place = 0;
        std::string id;
        std::string guid;
        std::vector<XmlAttribute> values;
    };
    struct PendingDefinition {
        const ResolvedType* symbol;
        std::uint32_t firstAssignedModel;
    };
    struct PendingOccurrence {
        References::Slot definition;
        const ResolvedType* symbol;
        std::int32_t x;
        std::int32_t y;
        std::uint32_t model;
    };
    struct PendingConnection {
        std::uint32_t source;
        References::Slot id;
        References::Slot target;
        std::int32_t typeNum;
    };

    ItemData EmptyItem() const { return {store_.get(), {}, {}}; }
    OpenItem& Innermost() { return itemIsOpen_ ? item_ : openGroups_.back(); }
    void Open(OpenItem& item, std::size_t place, std::string_view id);
    template <class Item>
    void Close(OpenItem& item, Item& stored);

    std::vector<std::uint32_t> ResolveOccurrences();
    void ResolveConnections();
    std::vector<Range> ResolveAssignedModels();

    std::unique_ptr<AmlStore> store_;
    std::set<std::int32_t> locales_;
    std::vector<OpenItem> openGroups_;
    OpenItem item_;  // the definition or model that is open, if `itemIsOpen_`
    bool itemIsOpen_ = false;

    References definitionIds_;
    References modelIds_;
    References connectionIds_;
    std::vector<PendingDefinition> definitions_;  // by place
    std::vector<References::Slot> assignedModels_;
    std::vector<PendingOccurrence> occurrences_;
    std::vector<PendingConnection> connections_;
    std::vector<std::uint32_t> drawn_;  // occurrences of a connection, by the slot of its id
    std::uint64_t drawnWithoutId_ = 0;
};

}  // namespace wxbrg::xml
