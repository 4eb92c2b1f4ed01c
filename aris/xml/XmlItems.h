#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "aris/Repository.h"
#include "aris/xml/TextArena.h"
#include "aris/xml/TypeResolver.h"

namespace wxbrg::xml {

struct AmlStore;

/// A part of one of the store's arrays.
struct Range {
    std::uint32_t first = 0;
    std::uint32_t count = 0;

    template <class T>
    std::span<const T> In(const std::vector<T>& array) const {
        return std::span(array).subspan(first, count);
    }
};

/// One value of an item: an attribute in one locale.
class XmlAttribute final : public aris::Attribute {
  public:
    /// `text` is none for an attribute that has no value. `order` counts the values of an item in the order
    /// of the file.
    XmlAttribute(const ResolvedType& type, std::int32_t locale, std::uint32_t order, Text text)
        : type_(&type), text_(text), locale_(locale), order_(order) {}

    bool IsMaintained() const override { return static_cast<bool>(text_); }
    std::string GetValue(bool removeLineBreaks) const override;
    std::string_view Type() const override { return type_->readableName; }

    std::string_view Value() const { return text_.View(); }
    std::int32_t TypeNum() const { return type_->number; }
    std::int32_t Locale() const { return locale_; }
    std::uint32_t Order() const { return order_; }

  private:
    const ResolvedType* type_;
    Text text_;
    std::int32_t locale_;
    std::uint32_t order_;
};

/// Whether a value comes before another in an item's values: by locale, then by attribute type.
bool StandsBefore(const XmlAttribute& a, const XmlAttribute& b);

/// What models, groups and object definitions have in common.
struct ItemData {
    const AmlStore* store;
    Text guid;
    Range values;  ///< in the store's values, in the order of `StandsBefore`

    /// The value of an attribute in a locale, or null.
    const XmlAttribute* Find(std::int32_t attrTypeNum, std::int32_t locale) const;
    /// Valid as long as the store; empty where the item has no name in the locale.
    std::string_view Name(std::int32_t locale) const;
    ARISAttr Attribute(std::int32_t attrTypeNum, std::int32_t locale) const;
};

template <class Interface>
class XmlItem : public Interface {
  public:
    explicit XmlItem(const ItemData& data) : data_(data) {}

    std::string_view Guid() const override { return data_.guid.View(); }
    std::string Name(std::int32_t locale) const override { return std::string(data_.Name(locale)); }
    ARISAttr Attribute(std::int32_t attrTypeNum, std::int32_t locale) const override {
        return data_.Attribute(attrTypeNum, locale);
    }

    const ItemData& Data() const { return data_; }
    void SetData(Text guid, Range values) {
        data_.guid = guid;
        data_.values = values;
    }

  private:
    ItemData data_;
};

class XmlGroup final : public XmlItem<aris::Group> {
  public:
    /// `parent` is the group around it, by its place in the store; `References::none` for a root group.
    XmlGroup(const ItemData& data, std::uint32_t parent) : XmlItem(data), parent_(parent) {}

    std::uint32_t Parent() const { return parent_; }

  private:
    std::uint32_t parent_;
};

class XmlModel final : public XmlItem<aris::Model> {
  public:
    /// `place` is its own place in the store, `group` that of the group around it, `References::none` outside
    /// of any.
    XmlModel(const ItemData& data, const ResolvedType& type, std::uint32_t place, std::uint32_t group)
        : XmlItem(data), type_(&type), place_(place), group_(group) {}

    ARISGroup Group() const override;
    std::string_view Type() const override { return type_->readableName; }
    std::int32_t TypeNum() const override { return type_->number; }
    ARISObjDefList ObjDefListFilter(std::string_view filter, std::int32_t locale, std::int32_t objTypeNum,
                                    std::string_view symbolFilter) const override;

    std::uint32_t Place() const { return place_; }
    std::uint32_t GroupPlace() const { return group_; }
    void SetDefinitions(Range definitions) { definitions_ = definitions; }

  private:
    const ResolvedType* type_;
    std::uint32_t place_;
    std::uint32_t group_;
    Range definitions_;  // in the store's definitionsOfModels
};

class XmlObjDef final : public XmlItem<aris::ObjDef> {
  public:
    /// Where the store's arrays hold what belongs to the definition.
    struct Links {
        Range occurrences;
        Range outgoing;
        Range incoming;
        Range assignedModels;
    };

    XmlObjDef(const ItemData& data, const ResolvedType& type) : XmlItem(data), type_(&type) {}

    std::string_view Type() const override { return type_->readableName; }
    std::int32_t TypeNum() const override { return type_->number; }
    ARISAttrList AttrList(std::int32_t locale) const override;
    ARISObjOccList OccList() const override;
    ARISObjOccList OccListInModel(ARISModel model) const override;
    ARISModelList AssignedModels() const override;
    ARISCxnDefList CxnListFilter(std::int32_t cnxKind, std::string_view filter, std::int32_t locale,
                                 std::int32_t cnxTypeNum, std::int16_t constant) const override;

    void SetLinks(const Links& links) { links_ = links; }

  private:
    const ResolvedType* type_;
    Links links_;
};

class XmlObjOcc final : public aris::ObjOcc {
  public:
    /// `model` is the model's place in the store.
    XmlObjOcc(std::int32_t symbol, std::int32_t x, std::int32_t y, std::uint32_t model)
        : symbol_(symbol), x_(x), y_(y), model_(model) {}

    std::int32_t SymbolNum() const override { return symbol_; }
    std::int32_t X() const override { return x_; }
    std::int32_t Y() const override { return y_; }

    std::uint32_t ModelPlace() const { return model_; }

  private:
    std::int32_t symbol_;
    std::int32_t x_;
    std::int32_t y_;
    std::uint32_t model_;
};

/// An occurrence of a connection has no data of its own, so that one object stands for all of them.
class XmlCxnOcc final : public aris::CxnOcc {};

class XmlCxnDef final : public aris::CxnDef {
  public:
    /// `source` and `target` are places in the store's definitions.
    XmlCxnDef(const AmlStore& store, std::uint32_t source, std::uint32_t target, std::int32_t typeNum,
              std::uint32_t occurrences)
        : store_(&store), source_(source), target_(target), typeNum_(typeNum), occurrences_(occurrences) {}

    ARISCxnOccList OccList() const override;
    ARISObjDef SourceObjDef() const override;
    ARISObjDef TargetObjDef() const override;

    std::int32_t TypeNum() const { return typeNum_; }
    std::uint32_t SourcePlace() const { return source_; }
    std::uint32_t TargetPlace() const { return target_; }

  private:
    const AmlStore* store_;
    std::uint32_t source_;
    std::uint32_t target_;
    std::int32_t typeNum_;
    std::uint32_t occurrences_;
};

}  // namespace wxbrg::xml
