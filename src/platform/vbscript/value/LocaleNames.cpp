#include "platform/vbscript/value/LocaleNames.h"

#include "platform/vbscript/value/String.h"

namespace vbs {

namespace {

struct Entry {
    std::u16string_view name;
    std::int32_t number;
};

constexpr Entry entries[] = {
    {u"af", 1078},     {u"sq", 1052},     {u"ar-ae", 14337}, {u"ar-bh", 15361}, {u"ar-dz", 5121},  {u"ar-eg", 3073},
    {u"ar-iq", 2049},  {u"ar-jo", 11265}, {u"ar-kw", 13313}, {u"ar-lb", 12289}, {u"ar-ly", 4097},  {u"ar-ma", 6145},
    {u"ar-om", 8193},  {u"ar-qa", 16385}, {u"ar-sa", 1025},  {u"ar-sy", 10241}, {u"ar-tn", 7169},  {u"ar-ye", 9217},
    {u"hy", 1067},     {u"az-az", 1068},  {u"eu", 1069},     {u"be", 1059},     {u"bg", 1026},     {u"ca", 1027},
    {u"zh-cn", 2052},  {u"zh-hk", 3076},  {u"zh-mo", 5124},  {u"zh-sg", 4100},  {u"zh-tw", 1028},  {u"hr", 1050},
    {u"cs", 1029},     {u"da", 1030},     {u"nl", 1043},     {u"nl-nl", 1043},  {u"nl-be", 2067},  {u"en", 1033},
    {u"en-au", 3081},  {u"en-bz", 10249}, {u"en-ca", 4105},  {u"en-cb", 9225},  {u"en-gb", 2057},  {u"en-ie", 6153},
    {u"en-jm", 8201},  {u"en-nz", 5129},  {u"en-ph", 13321}, {u"en-tt", 11273}, {u"en-us", 1033},  {u"en-za", 7177},
    {u"et", 1061},     {u"fa", 1065},     {u"fi", 1035},     {u"fo", 1080},     {u"fr", 1036},     {u"fr-fr", 1036},
    {u"fr-be", 2060},  {u"fr-ca", 3084},  {u"fr-ch", 4108},  {u"fr-lu", 5132},  {u"gd", 1084},     {u"gd-ie", 2108},
    {u"de", 1031},     {u"de-de", 1031},  {u"de-at", 3079},  {u"de-ch", 2055},  {u"de-li", 5127},  {u"de-lu", 4103},
    {u"el", 1032},     {u"he", 1037},     {u"hi", 1081},     {u"hu", 1038},     {u"is", 1039},     {u"id", 1057},
    {u"it", 1040},     {u"it-it", 1040},  {u"it-ch", 2064},  {u"ja", 1041},     {u"ko", 1042},     {u"lv", 1062},
    {u"lt", 1063},     {u"mk", 1071},     {u"ms-bn", 2110},  {u"ms-my", 1086},  {u"mt", 1082},     {u"mr", 1102},
    {u"no", 1044},     {u"no-no", 1044},  {u"nb-no", 1044},  {u"nn-no", 2068},  {u"pl", 1045},     {u"pt", 2070},
    {u"pt-pt", 2070},  {u"pt-br", 1046},  {u"rm", 1047},     {u"ro", 1048},     {u"ro-mo", 2072},  {u"ru", 1049},
    {u"ru-mo", 2073},  {u"sa", 1103},     {u"sr-sp", 2074},  {u"tn", 1074},     {u"sl", 1060},     {u"sk", 1051},
    {u"sb", 1070},     {u"es", 1034},     {u"es-es", 3082},  {u"es-ar", 11274}, {u"es-bo", 16394}, {u"es-cl", 13322},
    {u"es-co", 9226},  {u"es-cr", 5130},  {u"es-do", 7178},  {u"es-ec", 12298}, {u"es-gt", 4106},  {u"es-hn", 18442},
    {u"es-mx", 2058},  {u"es-ni", 19466}, {u"es-pa", 6154},  {u"es-pe", 10250}, {u"es-pr", 20490}, {u"es-py", 15370},
    {u"es-sv", 17418}, {u"es-uy", 14346}, {u"es-ve", 8202},  {u"sx", 1072},     {u"sw", 1089},     {u"sv", 1053},
    {u"sv-se", 1053},  {u"sv-fi", 2077},  {u"ta", 1097},     {u"tt", 1092},     {u"th", 1054},     {u"tr", 1055},
    {u"ts", 1073},     {u"uk", 1058},     {u"ur", 1056},     {u"uz-uz", 1091},  {u"vi", 1066},     {u"xh", 1076},
    {u"yi", 1085},     {u"zu", 1077},
};

} // namespace

std::optional<std::int32_t> localeNumber(std::u16string_view name) noexcept {
    for (const Entry& entry : entries) {
        if (equalNoCase(entry.name, name)) {
            return entry.number;
        }
    }
    return std::nullopt;
}

std::u16string_view localeName(std::int32_t number) noexcept {
    for (const Entry& entry : entries) {
        if (entry.number == number) {
            return entry.name;
        }
    }
    return {};
}

} // namespace vbs
