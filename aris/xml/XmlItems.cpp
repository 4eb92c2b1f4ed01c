#include "aris/xml/XmlItems.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <tuple>

#include "aris/xml/AmlStore.h"
#include "aris/xml/References.h"
#include "support/Failure.h"
#include "support/Text.h"

namespace wxbrg::xml {

namespace {

// There are as many of these as an export has values, occurrences and connections.
static_assert(sizeof(void*) > 8 || sizeof(XmlAttribute) <= 32);
static_assert(sizeof(void*) > 8 || sizeof(XmlObjOcc) <= 24);
static_assert(sizeof(void*) > 8 || sizeof(XmlCxnDef) <= 32);

/// Arguments that every call passes with the same value; another value would ask for what is not served.
void RequireArguments(bool asEver) {
    if (!asEver) throw Failure(FailureKind::invalidCall);
}

/// The references with a key, out of those that are sorted by it.
template <class Item, class Reference, class Key>
std::span<const Reference> WithKey(std::span<const Reference> sorted, Key key, Key (Item::*keyOf)() const) {
    const auto keyAt = [keyOf](const Reference& item) {
        return (static_cast<const Item&>(*item).*keyOf)();
    };
    const auto first = std::partition_point(sorted.begin(), sorted.end(), [&](const Reference& item) {
        return keyAt(item) < key;
    });
    const auto last = std::partition_point(first, sorted.end(), [&](const Reference& item) {
        return !(key < keyAt(item));
    });
    return {first, last};
}

std::span<const ARISCxnDef> OfType(std::span<const ARISCxnDef> sorted, std::int32_t typeNum) {
    return WithKey(sorted, typeNum, &XmlCxnDef::TypeNum);
}

}  // namespace

bool StandsBefore(const XmlAttribute& a, const XmlAttribute& b) {
    return std::tuple(a.Locale(), a.TypeNum()) < std::tuple(b.Locale(), b.TypeNum());
}

std::string XmlAttribute::GetValue(bool removeLineBreaks) const {
    return removeLineBreaks ? RemoveLineBreaks(Value()) : std::string(Value());
}

const XmlAttribute* ItemData::Find(std::int32_t attrTypeNum, std::int32_t locale) const {
    const auto own = values.In(store->values);
    const auto wanted = std::tuple(locale, attrTypeNum);
    const auto found = std::partition_point(own.begin(), own.end(), [&](const XmlAttribute& value) {
        return std::tuple(value.Locale(), value.TypeNum()) < wanted;
    });
    if (found == own.end() || found->Locale() != locale || found->TypeNum() != attrTypeNum) return nullptr;
    return &*found;
}

std::string_view ItemData::Name(std::int32_t locale) const {
    const XmlAttribute* const name = Find(nameAttribute, locale);
    return name == nullptr ? std::string_view() : name->Value();
}

ARISAttr ItemData::Attribute(std::int32_t attrTypeNum, std::int32_t locale) const {
    const XmlAttribute* const value = Find(attrTypeNum, locale);
    return value == nullptr ? store->Unmaintained(attrTypeNum) : ARISAttr(value);
}

ARISAttr AmlStore::Unmaintained(std::int32_t attrTypeNum) const {
    const auto found = unmaintained_.find(attrTypeNum);
    if (found != unmaintained_.end()) return &found->second.attribute;
    return &unmaintained_
                .try_emplace(attrTypeNum, attrTypeNum, types.NameOf(TypeKind::attribute, attrTypeNum))
                .first->second.attribute;
}

ARISGroup XmlModel::Group() const {
    const AmlStore& store = *Data().store;
    return group_ == References::none ? &store.noGroup : &store.groups[group_];
}

ARISObjDefList XmlModel::ObjDefListFilter(std::string_view filter, std::int32_t, std::int32_t objTypeNum,
                                          std::string_view symbolFilter) const {
    RequireArguments(filter.empty() && symbolFilter.empty());
    return ARISObjDefList(
        WithKey(definitions_.In(Data().store->definitionsOfModels), objTypeNum, &XmlObjDef::TypeNum));
}

ARISAttrList XmlObjDef::AttrList(std::int32_t locale) const {
    const auto own = Data().values.In(Data().store->values);
    const auto first = std::partition_point(own.begin(), own.end(), [&](const XmlAttribute& value) {
        return value.Locale() < locale;
    });
    std::vector<const XmlAttribute*> inLocale;
    for (auto value = first; value != own.end() && value->Locale() == locale; ++value)
        inLocale.push_back(&*value);
    std::sort(inLocale.begin(), inLocale.end(), [](const XmlAttribute* a, const XmlAttribute* b) {
        return a->Order() < b->Order();
    });
    return ARISAttrList(std::vector<ARISAttr>(inLocale.begin(), inLocale.end()));
}

ARISObjOccList XmlObjDef::OccList() const {
    return ARISObjOccList(links_.occurrences.In(Data().store->occurrencesOfDefinitions));
}

ARISObjOccList XmlObjDef::OccListInModel(ARISModel model) const {
    const std::uint32_t place = static_cast<const XmlModel&>(*model).Place();
    return ARISObjOccList(WithKey(links_.occurrences.In(Data().store->occurrencesOfDefinitions), place,
                                  &XmlObjOcc::ModelPlace));
}

ARISModelList XmlObjDef::AssignedModels() const {
    return ARISModelList(links_.assignedModels.In(Data().store->assignedModels));
}

ARISCxnDefList XmlObjDef::CxnListFilter(std::int32_t cnxKind, std::string_view filter, std::int32_t,
                                        std::int32_t cnxTypeNum, std::int16_t constant) const {
    RequireArguments(filter.empty() && constant == connectionFilterConstant);
    const AmlStore& store = *Data().store;
    const auto outgoing = OfType(links_.outgoing.In(store.outgoing), cnxTypeNum);
    if (cnxKind == CxnKind::outgoing) return ARISCxnDefList(outgoing);
    const auto incoming = OfType(links_.incoming.In(store.incoming), cnxTypeNum);
    if (cnxKind == CxnKind::incoming) return ARISCxnDefList(incoming);
    // Connections lie in the order of the file. One from the object to itself is in both lists.
    std::vector<ARISCxnDef> either;
    std::set_union(outgoing.begin(), outgoing.end(), incoming.begin(), incoming.end(),
                   std::back_inserter(either), [](const ARISCxnDef& a, const ARISCxnDef& b) {
                       return std::less<>{}(a.Get(), b.Get());
                   });
    return ARISCxnDefList(std::move(either));
}

ARISCxnOccList XmlCxnDef::OccList() const {
    return ARISCxnOccList(Range{0, occurrences_}.In(store_->connectionOccurrences));
}

ARISObjDef XmlCxnDef::SourceObjDef() const {
    return &store_->definitions[source_];
}

ARISObjDef XmlCxnDef::TargetObjDef() const {
    return &store_->definitions[target_];
}

}  // namespace wxbrg::xml
