#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/Ref.h"

/// The operations on an ARIS repository that the export needs, and nothing else: it only ever reads.
///
/// Everything the interfaces below hand out belongs to the repository and lives as long as it. An operation
/// that fails throws `Failure` with the repository's own number and description. Texts are UTF-8, positions
/// have the x axis to the right and the y axis downward, in the repository's own units.
namespace wxbrg {

/// Direction of a connection, as seen from an object; the first argument of `CxnListFilter`.
namespace CxnKind {
inline constexpr std::int32_t incoming = 2;  ///< the related object is the connection's source
inline constexpr std::int32_t outgoing = 4;  ///< the related object is the connection's target
}  // namespace CxnKind

/// Attribute type number of every item's name.
inline constexpr std::int32_t nameAttribute = 1;
/// The constant that every call of `CxnListFilter` passes last.
inline constexpr std::int16_t connectionFilterConstant = 972;
/// The program identifier under which ARIS is reached.
inline constexpr std::string_view arisProgramId = "ARIS.Application.5.0";
/// The component of the ARIS application that opens databases.
inline constexpr std::string_view arisReportComponent = "Report";

namespace aris {
class Attribute;
class ObjOcc;
class CxnOcc;
class CxnDef;
class ObjDef;
class Group;
class Model;
class User;
class Database;
class ReportComponent;
class Application;
}  // namespace aris

using ARISApplication = Ref<aris::Application>;
using ARISReportComponent = Ref<aris::ReportComponent>;
using ARISDatabase = Ref<aris::Database>;
using ARISUser = Ref<const aris::User>;
using ARISGroup = Ref<const aris::Group>;
using ARISModel = Ref<const aris::Model>;
using ARISObjDef = Ref<const aris::ObjDef>;
using ARISObjOcc = Ref<const aris::ObjOcc>;
using ARISCxnOcc = Ref<const aris::CxnOcc>;
using ARISCxnDef = Ref<const aris::CxnDef>;
using ARISAttr = Ref<const aris::Attribute>;

/// A read-only ordered list of handles. Positions start at 0, unlike those of the program's collections.
/// It is a view of the repository's own memory or shares memory of its own; copying it is cheap.
template <class Item>
class ARISList {
  public:
    ARISList() = default;
    /// A view: `items` must live as long as the repository.
    explicit ARISList(std::span<const Ref<const Item>> items) : items_(items) {}
    /// A list with memory of its own.
    explicit ARISList(std::vector<Ref<const Item>> items)
        : owned_(std::make_shared<std::vector<Ref<const Item>>>(std::move(items))), items_(*owned_) {}

    std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }
    /// The item at a position from 0 to `Count` - 1. Throws failure 5 outside that range.
    Ref<const Item> Get(std::int32_t position) const {
        if (position < 0 || position >= Count()) throw Failure(FailureKind::invalidCall);
        return items_[static_cast<std::size_t>(position)];
    }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

  private:
    std::shared_ptr<std::vector<Ref<const Item>>> owned_;
    std::span<const Ref<const Item>> items_;
};

using ARISModelList = ARISList<aris::Model>;
using ARISObjOccList = ARISList<aris::ObjOcc>;
using ARISCxnOccList = ARISList<aris::CxnOcc>;
using ARISCxnDefList = ARISList<aris::CxnDef>;
using ARISAttrList = ARISList<aris::Attribute>;

/// Object definitions; the one list that can be sorted.
class ARISObjDefList : public ARISList<aris::ObjDef> {
  public:
    using ARISList::ARISList;
    /// Sorts in place by up to three attributes (0: no further key), stable, by code point of their values in
    /// `locale`. The export sorts by attribute 1, the name, alone; another first key is failure 5.
    void Sort(std::int16_t firstKey, std::int16_t secondKey, std::int16_t thirdKey, std::int32_t locale);
};

namespace aris {

/// One attribute of an item in one locale.
class Attribute {
  public:
    virtual ~Attribute() = default;
    /// Whether the attribute has a value in the locale with which it was fetched.
    virtual bool IsMaintained() const = 0;
    /// The value, empty where it is not maintained; each line break becomes one blank on demand.
    virtual std::string GetValue(bool removeLineBreaks) const = 0;
    /// Readable name of the attribute type, for messages.
    virtual std::string_view Type() const = 0;
};

/// What models, groups and object definitions have in common.
class Item {
  public:
    virtual ~Item() = default;
    /// The identity of the item: two handles are the same item exactly if these are equal, case included.
    virtual std::string_view Guid() const = 0;
    /// The name in a locale, line breaks kept; empty where there is none.
    virtual std::string Name(std::int32_t locale) const = 0;
    /// Always a handle, also for an attribute without a value: `IsMaintained` says.
    virtual ARISAttr Attribute(std::int32_t attrTypeNum, std::int32_t locale) const = 0;
};

/// A folder of the database.
class Group : public Item {};

/// An object definition: the object as it exists once, whatever models show it.
class ObjDef : public Item {
  public:
    /// Readable name of the object type, for messages.
    virtual std::string_view Type() const = 0;
    virtual std::int32_t TypeNum() const = 0;
    /// All attributes that have a value in the locale.
    virtual ARISAttrList AttrList(std::int32_t locale) const = 0;
    /// All occurrences, in all models. A definition without any counts as not there.
    virtual ARISObjOccList OccList() const = 0;
    /// The occurrences in one model, in the model's order.
    virtual ARISObjOccList OccListInModel(ARISModel model) const = 0;
    /// The models assigned to the object, in the object's order.
    virtual ARISModelList AssignedModels() const = 0;
    /// The object's connections of one type. `cnxKind` 2: incoming, 4: outgoing, any other number: those at
    /// either end. `filter` is always empty and `constant` always `connectionFilterConstant`.
    virtual ARISCxnDefList CxnListFilter(std::int32_t cnxKind, std::string_view filter, std::int32_t locale,
                                         std::int32_t cnxTypeNum, std::int16_t constant) const = 0;
};

/// A model.
class Model : public Item {
  public:
    virtual ARISGroup Group() const = 0;
    /// Readable name of the model type, for messages.
    virtual std::string_view Type() const = 0;
    virtual std::int32_t TypeNum() const = 0;
    /// The definitions of one object type that the model shows, each once, in the repository's order. The two
    /// text arguments are always empty.
    virtual ARISObjDefList ObjDefListFilter(std::string_view filter, std::int32_t locale,
                                            std::int32_t objTypeNum, std::string_view symbolFilter) const = 0;
};

/// One occurrence of an object definition in one model.
class ObjOcc {
  public:
    virtual ~ObjOcc() = default;
    virtual std::int32_t SymbolNum() const = 0;
    virtual std::int32_t X() const = 0;
    virtual std::int32_t Y() const = 0;
};

/// One occurrence of a connection; only their number matters.
class CxnOcc {
  public:
    virtual ~CxnOcc() = default;
};

/// A connection between two object definitions.
class CxnDef {
  public:
    virtual ~CxnDef() = default;
    virtual ARISCxnOccList OccList() const = 0;
    virtual ARISObjDef SourceObjDef() const = 0;
    virtual ARISObjDef TargetObjDef() const = 0;
};

/// The user that a database connection runs under.
class User {
  public:
    virtual ~User() = default;
    virtual std::string Name(std::int32_t locale) const = 0;
};

/// An open database.
class Database {
  public:
    virtual ~Database() = default;
    /// The models of a type whose attribute 1 equals `modelName` in the locale, in the repository's order.
    /// `attrTypeNum` is always 1, `option` always 1 and `flags` always 0.
    virtual ARISModelList FindModels(std::int32_t attrTypeNum, std::int32_t modelTypeNum, std::int16_t option,
                                     std::int32_t locale, std::string_view modelName,
                                     std::int16_t flags) const = 0;
    virtual std::string ServerName() const = 0;
    virtual std::string Name(std::int32_t locale) const = 0;
    virtual ARISUser ActiveUser() const = 0;
};

/// The door to databases.
class ReportComponent {
  public:
    virtual ~ReportComponent() = default;
    /// Opens a database. Throws `Failure` when it cannot be opened or read.
    virtual ARISDatabase OpenDatabase(std::string_view server, std::string_view database,
                                      std::string_view reg, std::string_view user,
                                      std::string_view password) = 0;
};

/// The running ARIS application.
class Application {
  public:
    virtual ~Application() = default;
    virtual ARISReportComponent GetComponent(std::string_view name) = 0;
};

/// Where applications come from.
class Automation {
  public:
    virtual ~Automation() = default;
    /// The application behind a program identifier, or no object when it is not available. Throws `Failure`
    /// when its creation fails outright.
    virtual ARISApplication CreateObject(std::string_view programId) = 0;
};

}  // namespace aris
}  // namespace wxbrg
