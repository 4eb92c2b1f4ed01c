#include "platform/posix/PosixUserLocale.h"

#include <langinfo.h>
#include <locale.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "platform/posix/Iconv.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

/// A locale that is known by name on POSIX and by number elsewhere.
struct LocaleRow {
    std::string_view name;  ///< language and territory
    std::uint32_t number;
};

constexpr std::uint32_t defaultNumber = 1033;

// clang-format off
constexpr LocaleRow localeTable[] = {
    {"af_ZA",  1078}, {"ar_AE", 14337}, {"ar_EG",  3073}, {"ar_SA",  1025}, {"be_BY",  1059}, {"bg_BG",  1026},
    {"ca_ES",  1027}, {"cs_CZ",  1029}, {"cy_GB",  1106}, {"da_DK",  1030}, {"de_AT",  3079}, {"de_CH",  2055},
    {"de_DE",  1031}, {"de_LI",  5127}, {"de_LU",  4103}, {"el_GR",  1032}, {"en_AU",  3081}, {"en_CA",  4105},
    {"en_GB",  2057}, {"en_HK", 15369}, {"en_IE",  6153}, {"en_IN", 16393}, {"en_NZ",  5129}, {"en_PH", 13321},
    {"en_SG", 18441}, {"en_US",  1033}, {"en_ZA",  7177}, {"es_AR", 11274}, {"es_CL", 13322}, {"es_CO",  9226},
    {"es_ES",  3082}, {"es_MX",  2058}, {"es_PE", 10250}, {"es_VE",  8202}, {"et_EE",  1061}, {"eu_ES",  1069},
    {"fa_IR",  1065}, {"fi_FI",  1035}, {"fr_BE",  2060}, {"fr_CA",  3084}, {"fr_CH",  4108}, {"fr_FR",  1036},
    {"fr_LU",  5132}, {"ga_IE",  2108}, {"gl_ES",  1110}, {"he_IL",  1037}, {"hi_IN",  1081}, {"hr_HR",  1050},
    {"hu_HU",  1038}, {"hy_AM",  1067}, {"id_ID",  1057}, {"is_IS",  1039}, {"it_CH",  2064}, {"it_IT",  1040},
    {"ja_JP",  1041}, {"ka_GE",  1079}, {"kk_KZ",  1087}, {"ko_KR",  1042}, {"lt_LT",  1063}, {"lv_LV",  1062},
    {"mk_MK",  1071}, {"ms_MY",  1086}, {"nb_NO",  1044}, {"nl_BE",  2067}, {"nl_NL",  1043}, {"nn_NO",  2068},
    {"no_NO",  1044}, {"pl_PL",  1045}, {"pt_BR",  1046}, {"pt_PT",  2070}, {"ro_RO",  1048}, {"ru_RU",  1049},
    {"sk_SK",  1051}, {"sl_SI",  1060}, {"sq_AL",  1052}, {"sv_FI",  2077}, {"sv_SE",  1053}, {"th_TH",  1054},
    {"tr_TR",  1055}, {"uk_UA",  1058}, {"vi_VN",  1066}, {"zh_CN",  2052}, {"zh_HK",  3076}, {"zh_MO",  5124},
    {"zh_SG",  4100}, {"zh_TW",  1028},
};
// clang-format on

static_assert(std::adjacent_find(std::begin(localeTable), std::end(localeTable),
                                 [](const LocaleRow& row, const LocaleRow& next) {
                                     return row.name >= next.name;
                                 }) == std::end(localeTable));

std::string EnvironmentText(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

/// The name of the locale that the environment sets for a category such as "LC_TIME".
std::string LocaleName(const char* category) {
    for (const char* name : {"LC_ALL", category, "LANG"})
        if (std::string value = EnvironmentText(name); !value.empty()) return value;
    return "C";
}

/// The locale that the environment sets for a category, in all categories, so that its texts are in its
/// character set.
class CategoryLocale {
  public:
    explicit CategoryLocale(const char* category)
        : locale_(newlocale(LC_ALL_MASK, LocaleName(category).c_str(), nullptr)) {
        if (locale_ == nullptr) locale_ = newlocale(LC_ALL_MASK, "C", nullptr);
    }
    ~CategoryLocale() { freelocale(locale_); }
    CategoryLocale(const CategoryLocale&) = delete;
    CategoryLocale& operator=(const CategoryLocale&) = delete;

    /// A text of the locale, in UTF-8.
    std::string Text(nl_item item) const {
        Iconv conversion("UTF-8", nl_langinfo_l(CODESET, locale_));
        std::string text;
        conversion.Convert(nl_langinfo_l(item, locale_), text);
        conversion.Finish(text);
        return text;
    }

  private:
    locale_t locale_;
};

}  // namespace

std::uint32_t LocaleNumber(std::string_view name) {
    name = name.substr(0, name.find_first_of(".@"));
    const auto* const found =
        std::find_if(std::begin(localeTable), std::end(localeTable), [name](const LocaleRow& row) {
            return row.name == name;
        });
    return found == std::end(localeTable) ? defaultNumber : found->number;
}

PosixUserLocale::PosixUserLocale() : decimalSeparator_(U'.'), number_(LocaleNumber(LocaleName("LC_CTYPE"))) {
    const CategoryLocale time("LC_TIME");
    for (std::size_t day = 0; day < dayNames_.size(); ++day)
        dayNames_[day] = time.Text(ABDAY_1 + static_cast<nl_item>(day));
    for (std::size_t month = 0; month < monthNames_.size(); ++month)
        monthNames_[month] = time.Text(ABMON_1 + static_cast<nl_item>(month));
    const std::string separator = CategoryLocale("LC_NUMERIC").Text(RADIXCHAR);
    std::size_t position = 0;
    if (!separator.empty()) decimalSeparator_ = TakeCharacter(separator, position);
}

}  // namespace wxbrg
