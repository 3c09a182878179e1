// Contents factory: every id to its screen class, and the page stack group and state of each id.
#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <set>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

#include "contents/dvc_pnl_ceh_contents_proc_factory.h"
#include "orvanta/host/host_data_manager.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/host/trace_sink.h"
#include "orvanta/platform/dvc_pnl_cly_contents_layout.h"
#include "orvanta/platform/dvc_pnl_psm_page_stack_matrix.h"
#include "screens/dvc_pnl_ceh_screens.h"
#include "support/trace_expect.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"

namespace orvanta {
namespace {

using test::traced;
using id_ranges = std::vector<std::pair<int, int>>;

bool in(const id_ranges& ranges, int id) {
  for (const auto& [first, last] : ranges) {
    if (id >= first && id <= last)
      return true;
  }
  return false;
}

// The exact class, not a class derived from it.
template <class T>
bool is_a(const dvc_pnl_ceh_contents_interface* p) {
  return p != nullptr && typeid(*p) == typeid(T);
}

struct family_case {
  const char* family;
  bool (*is)(const dvc_pnl_ceh_contents_interface*);
  id_ranges ids;
};

// Every family with the ids it serves. 1703 belongs to the message screen with keys only.
const std::vector<family_case>& families() {
  static const std::vector<family_case> table = {
      // clang-format off
      {"d_07_01", is_a<dvc_pnl_ceh_contents_hdl_d_07_01>,
       {{0, 0}, {6, 6}}},
      {"d_07_02", is_a<dvc_pnl_ceh_contents_hdl_d_07_02>,
       {{3, 3}, {117, 117}}},
      {"d_07_03", is_a<dvc_pnl_ceh_contents_hdl_d_07_03>,
       {{5, 5}}},
      {"d_07_06", is_a<dvc_pnl_ceh_contents_hdl_d_07_06>,
       {{2, 2}, {4, 4}}},
      {"d_07_04", is_a<dvc_pnl_ceh_contents_hdl_d_07_04>,
       {{7, 7}, {443, 443}}},
      {"d_07_05", is_a<dvc_pnl_ceh_contents_hdl_d_07_05>,
       {{2134, 2135}, {2140, 2140}, {2145, 2145}, {2149, 2149}, {2151, 2151}, {2153, 2153},
        {2162, 2162}, {2167, 2167}, {2170, 2170}, {2174, 2174}, {2178, 2178}, {2214, 2225}}},
      {"d_01_01_01", is_a<dvc_pnl_ceh_contents_hdl_d_01_01_01>,
       {{11, 12}, {14, 15}, {17, 23}, {25, 33}, {45, 48}, {53, 63}, {68, 68}, {70, 71}, {73, 73},
        {75, 78}, {80, 86}, {89, 90}, {94, 94}, {102, 102}, {105, 114}, {120, 120}, {123, 126},
        {130, 132}, {134, 135}, {139, 140}, {143, 143}, {146, 151}, {153, 156}, {169, 169},
        {204, 204}, {207, 207}, {215, 215}, {239, 241}, {258, 262}, {266, 266}, {282, 282},
        {285, 285}, {288, 289}, {294, 294}, {311, 311}, {346, 346}, {357, 357}, {372, 372},
        {381, 381}, {418, 418}, {421, 421}, {429, 429}, {454, 456}, {464, 464}, {467, 467},
        {473, 473}, {477, 477}, {480, 480}, {497, 497}, {513, 513}, {516, 516}, {566, 566},
        {570, 570}, {576, 576}, {578, 579}, {1704, 1704}, {1707, 1708}, {1712, 1712}, {1717, 1717},
        {1725, 1725}, {1759, 1760}, {1780, 1781}, {1783, 1790}, {1794, 1810}, {1813, 1813},
        {2146, 2147}, {2150, 2150}, {2152, 2152}, {2154, 2161}, {2163, 2166}, {2168, 2168},
        {2171, 2171}, {2179, 2179}, {2182, 2182}, {2184, 2184}, {2226, 2230}, {2240, 2242}}},
      {"sys_menu_d_01_01_01", is_a<dvc_pnl_ceh_contents_hdl_sys_menu_d_01_01_01>,
       {{569, 569}, {582, 583}, {586, 586}, {589, 590}, {615, 618}, {622, 628}, {631, 643},
        {651, 658}, {661, 667}, {669, 669}, {675, 675}, {680, 680}, {685, 692}, {697, 707},
        {710, 724}, {730, 732}, {735, 735}, {737, 739}, {741, 743}, {746, 746}, {749, 749},
        {753, 753}, {755, 756}, {758, 759}, {761, 763}, {765, 765}, {768, 771}, {780, 783},
        {791, 791}, {810, 810}, {822, 822}, {826, 826}, {831, 836}, {840, 841}, {843, 843},
        {845, 846}, {850, 851}, {853, 853}, {860, 860}, {866, 867}, {869, 869}, {873, 876},
        {890, 890}, {901, 901}, {908, 915}, {920, 946}, {951, 956}, {958, 961}, {964, 966},
        {969, 969}, {972, 979}, {981, 981}, {984, 987}, {989, 989}, {996, 996}, {1011, 1011},
        {1020, 1020}, {1023, 1024}, {1033, 1033}, {1042, 1047}, {1049, 1055}, {1067, 1067},
        {1076, 1076}, {1090, 1091}, {1100, 1100}, {1102, 1104}, {1107, 1108}, {1111, 1111},
        {1113, 1115}, {1117, 1118}, {1125, 1128}, {1130, 1132}, {1134, 1143}, {1145, 1154},
        {1160, 1160}, {1166, 1166}, {1170, 1172}, {1174, 1174}, {1176, 1177}, {1180, 1182},
        {1186, 1186}, {1193, 1193}, {1198, 1198}, {1206, 1207}, {1209, 1209}, {1211, 1211},
        {1213, 1219}, {1224, 1228}, {1230, 1230}, {1236, 1236}, {1251, 1251}, {1254, 1254},
        {1259, 1259}, {1262, 1278}, {1280, 1281}, {1283, 1284}, {1295, 1311}, {1314, 1316},
        {1318, 1319}, {1323, 1330}, {1332, 1335}, {1338, 1338}, {1347, 1347}, {1349, 1350},
        {1352, 1354}, {1356, 1387}, {1394, 1399}, {1405, 1413}, {1415, 1416}, {1418, 1418},
        {1425, 1428}, {1432, 1432}, {1437, 1437}, {1443, 1443}, {1445, 1445}, {1447, 1450},
        {1457, 1462}, {1465, 1466}, {1474, 1474}, {1476, 1479}, {1482, 1482}, {1485, 1485},
        {1488, 1488}, {1491, 1494}, {1499, 1499}, {1501, 1502}, {1505, 1507}, {1516, 1516},
        {1527, 1527}, {1535, 1535}, {1543, 1544}, {1546, 1550}, {1568, 1573}, {1577, 1581},
        {1584, 1584}, {1596, 1596}, {1598, 1599}, {1601, 1602}, {1604, 1607}, {1610, 1615},
        {1619, 1622}, {1624, 1624}, {1628, 1629}, {1631, 1632}, {1634, 1638}, {1642, 1645},
        {1651, 1657}, {1659, 1660}, {1662, 1662}, {1667, 1667}, {1672, 1672}, {1674, 1678},
        {1680, 1680}, {1682, 1688}, {1886, 1886}, {1895, 1895}, {1898, 1899}, {1901, 1901},
        {1905, 1905}}},
      {"d_01_01_02", is_a<dvc_pnl_ceh_contents_hdl_d_01_01_02>,
       {{35, 43}, {1716, 1716}}},
      {"d_01_01_03", is_a<dvc_pnl_ceh_contents_hdl_d_01_01_03>,
       {{91, 91}, {93, 93}, {116, 116}, {178, 178}, {201, 203}, {229, 229}, {236, 236}, {264, 265},
        {276, 276}, {280, 281}, {287, 287}, {290, 290}, {419, 419}, {478, 478}, {495, 495},
        {511, 511}, {530, 530}, {568, 568}, {1736, 1736}}},
      {"sys_menu_d_01_01_03", is_a<dvc_pnl_ceh_contents_hdl_sys_menu_d_01_01_03>,
       {{644, 644}, {659, 659}, {668, 668}, {673, 673}, {679, 679}, {747, 747}, {852, 852},
        {868, 868}, {967, 968}, {995, 995}, {1010, 1010}, {1032, 1032}, {1075, 1075}, {1078, 1078},
        {1185, 1185}, {1253, 1253}, {1291, 1291}, {1320, 1320}}},
      {"d_01_01_04_01", is_a<dvc_pnl_ceh_contents_hdl_d_01_01_04_01>,
       {{8, 8}, {65, 67}, {69, 69}, {95, 101}, {103, 104}, {121, 121}, {1229, 1229},
        {1232, 1235}}},
      {"d_01_01_04_02", is_a<dvc_pnl_ceh_contents_hdl_d_01_01_04_02>,
       {{64, 64}, {1231, 1231}}},
      {"d_01_01_05", is_a<dvc_pnl_ceh_contents_hdl_d_01_01_05>,
       {{44, 44}, {1782, 1782}}},
      {"d_01_01_06", is_a<dvc_pnl_ceh_contents_hdl_d_01_01_06>,
       {{179, 179}, {439, 439}, {481, 481}, {498, 498}, {515, 515}, {552, 553}, {864, 864},
        {881, 881}, {1028, 1028}, {1292, 1292}, {1737, 1737}}},
      {"d_01_01_07", is_a<dvc_pnl_ceh_contents_hdl_d_01_01_07>,
       {{462, 462}, {472, 472}, {760, 760}, {1484, 1484}, {1592, 1592}, {2181, 2181}}},
      {"d_01_01_08", is_a<dvc_pnl_ceh_contents_hdl_d_01_01_08>,
       {{438, 438}, {463, 463}, {479, 479}, {496, 496}, {514, 514}}},
      {"d_01_05", is_a<dvc_pnl_ceh_contents_hdl_d_01_05>,
       {{319, 319}, {345, 345}, {365, 365}}},
      {"d_01_06", is_a<dvc_pnl_ceh_contents_hdl_d_01_06>,
       {{292, 292}}},
      {"d_01_08", is_a<dvc_pnl_ceh_contents_hdl_d_01_08>,
       {{293, 293}, {310, 310}, {324, 324}, {337, 337}, {356, 356}, {380, 380}, {393, 393},
        {1705, 1706}, {1711, 1711}}},
      {"d_01_10", is_a<dvc_pnl_ceh_contents_hdl_d_01_10>,
       {{206, 206}, {1079, 1079}}},
      {"d_02_01", is_a<dvc_pnl_ceh_contents_hdl_d_02_01>,
       {{471, 471}, {476, 476}, {525, 525}, {728, 729}, {754, 754}, {757, 757}, {859, 859},
        {879, 879}, {1015, 1015}, {1017, 1018}, {1039, 1039}, {1066, 1066}, {1453, 1453},
        {1764, 1764}, {2006, 2006}, {2010, 2010}, {2014, 2018}, {2026, 2028}, {2032, 2032},
        {2043, 2048}, {2056, 2056}, {2093, 2096}}},
      {"d_02_02", is_a<dvc_pnl_ceh_contents_hdl_d_02_02>,
       {{74, 74}, {118, 118}, {165, 165}, {194, 194}, {376, 377}, {528, 528}, {619, 619},
        {621, 621}, {629, 629}, {645, 645}, {649, 649}, {693, 693}, {695, 695}, {725, 725},
        {795, 795}, {823, 823}, {847, 847}, {980, 980}, {993, 993}, {1041, 1041}, {1048, 1048},
        {1101, 1101}, {1106, 1106}, {1112, 1112}, {1120, 1120}, {1124, 1124}, {1312, 1313},
        {1423, 1423}, {1451, 1451}, {1489, 1489}, {1498, 1498}, {1524, 1524}, {1586, 1586},
        {1713, 1713}, {2034, 2035}, {2040, 2040}, {2110, 2110}, {2112, 2112}, {2188, 2188}}},
      {"d_02_03", is_a<dvc_pnl_ceh_contents_hdl_d_02_03>,
       {{304, 305}, {378, 378}, {415, 415}, {435, 435}, {446, 446}, {470, 470}, {805, 805},
        {1321, 1321}, {1336, 1336}, {1435, 1435}, {1503, 1503}, {1521, 1521}, {1617, 1618},
        {1761, 1761}, {2033, 2033}, {2036, 2036}, {2050, 2050}}},
      {"d_02_04", is_a<dvc_pnl_ceh_contents_hdl_d_02_04>,
       {{180, 180}, {440, 440}, {465, 465}, {474, 474}, {492, 493}, {508, 509}, {547, 547},
        {606, 606}, {670, 670}, {676, 676}, {681, 681}, {683, 683}, {750, 750}, {856, 856},
        {870, 870}, {897, 897}, {1000, 1000}, {1019, 1019}, {1036, 1036}, {1070, 1070},
        {1083, 1083}, {1085, 1085}, {1189, 1189}, {1256, 1256}, {1293, 1293}, {1486, 1486},
        {1559, 1559}, {1739, 1739}, {2185, 2185}}},
      {"d_02_05", is_a<dvc_pnl_ceh_contents_hdl_d_02_05>,
       {{302, 302}, {321, 321}, {367, 367}, {369, 369}, {387, 387}, {1709, 1709}}},
      {"d_02_06", is_a<dvc_pnl_ceh_contents_hdl_d_02_06>,
       {{216, 216}, {726, 726}, {786, 786}, {789, 789}, {793, 793}, {796, 796}, {804, 804},
        {811, 811}, {1289, 1289}, {1421, 1421}, {1433, 1433}, {1496, 1496}, {1593, 1593},
        {1663, 1663}, {1670, 1670}, {1673, 1673}, {1720, 1720}, {1723, 1723}, {1732, 1732},
        {1746, 1746}, {1755, 1755}, {1757, 1758}, {1884, 1884}, {1892, 1892}, {1913, 1913},
        {2005, 2005}, {2021, 2021}, {2041, 2042}, {2049, 2049}, {2052, 2052}, {2122, 2122},
        {2201, 2201}}},
      {"d_03_01", is_a<dvc_pnl_ceh_contents_hdl_d_03_01>,
       {{9, 9}, {24, 24}, {183, 183}, {209, 209}, {214, 214}, {529, 529}, {531, 531}, {580, 581},
        {630, 630}, {646, 646}, {650, 650}, {672, 672}, {694, 694}, {696, 696}, {764, 764},
        {785, 785}, {787, 788}, {792, 792}, {794, 794}, {807, 809}, {812, 812}, {814, 815},
        {824, 825}, {848, 848}, {872, 872}, {994, 994}, {1121, 1122}, {1252, 1252}, {1288, 1288},
        {1290, 1290}, {1414, 1414}, {1440, 1442}, {1454, 1454}, {1483, 1483}, {1522, 1523},
        {1542, 1542}, {1545, 1545}, {1594, 1594}, {1609, 1609}, {1658, 1658}, {1679, 1679},
        {1699, 1699}, {1719, 1719}, {1721, 1722}, {1733, 1734}, {1753, 1754}, {1763, 1763},
        {1791, 1791}, {1904, 1904}, {1917, 1932}, {1934, 1934}, {1936, 1937}, {1939, 1955},
        {1957, 1969}, {1971, 1971}, {1973, 1973}, {1975, 1975}, {1978, 1985}, {1987, 1987},
        {1989, 1989}, {2008, 2008}, {2011, 2013}, {2020, 2020}, {2022, 2023}, {2029, 2031},
        {2039, 2039}, {2051, 2051}, {2053, 2053}, {2055, 2055}, {2057, 2057}, {2062, 2062},
        {2064, 2064}, {2067, 2067}, {2083, 2083}, {2085, 2085}, {2087, 2087}, {2099, 2099},
        {2101, 2101}, {2103, 2105}, {2129, 2129}, {2177, 2177}, {2204, 2204}, {2209, 2209}}},
      {"d_03_03", is_a<dvc_pnl_ceh_contents_hdl_d_03_03>,
       {{1824, 1824}}},
      {"d_03_05", is_a<dvc_pnl_ceh_contents_hdl_d_03_05>,
       {{152, 152}, {452, 452}, {1434, 1434}, {1504, 1504}, {1701, 1701}, {1703, 1703},
        {1743, 1745}, {1826, 1826}, {1837, 1837}, {1847, 1847}, {1849, 1849}, {1853, 1857},
        {1865, 1866}, {1881, 1881}, {1914, 1914}, {1938, 1938}, {1992, 1993}, {1996, 1996},
        {2003, 2003}, {2019, 2019}, {2024, 2025}, {2058, 2059}, {2063, 2063}, {2065, 2065},
        {2068, 2072}, {2074, 2075}, {2078, 2078}, {2082, 2082}, {2102, 2102}, {2106, 2109},
        {2111, 2111}, {2113, 2115}, {2119, 2121}, {2125, 2128}, {2130, 2133}, {2143, 2143},
        {2169, 2169}, {2172, 2173}, {2202, 2202}, {2206, 2207}, {2210, 2213}, {2231, 2234}}},
      {"d_03_06", is_a<dvc_pnl_ceh_contents_hdl_d_03_06>,
       {{1827, 1827}, {1844, 1844}}},
      {"d_03_08", is_a<dvc_pnl_ceh_contents_hdl_d_03_08>,
       {{442, 442}, {1337, 1337}, {1777, 1777}, {1997, 1997}, {2084, 2084}}},
      {"d_03_10", is_a<dvc_pnl_ceh_contents_hdl_d_03_10>,
       {{1933, 1933}, {2187, 2187}}},
      {"d_03_12", is_a<dvc_pnl_ceh_contents_hdl_d_03_12>,
       {{167, 168}, {172, 174}, {195, 196}, {238, 238}, {406, 406}, {410, 413}, {790, 790},
        {1285, 1287}, {1588, 1589}, {1591, 1591}, {1597, 1597}, {1671, 1671}, {1700, 1700},
        {1715, 1715}, {1724, 1724}, {1765, 1776}, {1778, 1779}, {1814, 1823}, {1829, 1830},
        {1832, 1836}, {1838, 1843}, {1845, 1846}, {1848, 1848}, {1850, 1852}, {1858, 1864},
        {1935, 1935}, {1990, 1991}, {1994, 1995}, {2037, 2038}, {2054, 2054}, {2186, 2186}}},
      {"d_03_13", is_a<dvc_pnl_ceh_contents_hdl_d_03_13>,
       {{181, 181}, {437, 437}, {441, 441}, {445, 445}, {466, 466}, {469, 469}, {475, 475},
        {494, 494}, {510, 510}, {524, 524}, {548, 548}, {607, 607}, {671, 671}, {677, 677},
        {682, 682}, {684, 684}, {751, 751}, {855, 855}, {857, 857}, {863, 863}, {871, 871},
        {880, 880}, {894, 894}, {1001, 1001}, {1016, 1016}, {1027, 1027}, {1035, 1035},
        {1037, 1037}, {1056, 1056}, {1074, 1074}, {1080, 1080}, {1084, 1084}, {1188, 1188},
        {1190, 1190}, {1255, 1255}, {1294, 1294}, {1558, 1558}, {1740, 1740}, {1956, 1956},
        {2007, 2007}, {2189, 2189}}},
      {"d_03_14", is_a<dvc_pnl_ceh_contents_hdl_d_03_14>,
       {{235, 235}, {379, 379}, {453, 453}, {1666, 1666}, {1735, 1735}, {1742, 1742}, {1893, 1893},
        {1970, 1970}, {1972, 1972}, {1974, 1974}, {1976, 1977}, {1988, 1988}, {1998, 2002},
        {2009, 2009}, {2060, 2061}, {2066, 2066}, {2073, 2073}, {2081, 2081}, {2089, 2092},
        {2097, 2098}, {2116, 2118}, {2123, 2124}, {2144, 2144}, {2148, 2148}}},
      {"d_03_15", is_a<dvc_pnl_ceh_contents_hdl_d_03_15>,
       {{1825, 1825}, {1828, 1828}, {1831, 1831}}},
      {"d_03_16", is_a<dvc_pnl_ceh_contents_hdl_d_03_16>,
       {{1, 1}, {138, 138}, {565, 565}, {574, 574}, {1665, 1665}, {2004, 2004}, {2086, 2086},
        {2088, 2088}}},
      {"d_03_17", is_a<dvc_pnl_ceh_contents_hdl_d_03_17>,
       {{1741, 1741}}},
      {"d_04_01_01", is_a<dvc_pnl_ceh_contents_hdl_d_04_01_01>,
       {{115, 115}, {444, 444}, {447, 451}, {1692, 1694}}},
      {"d_04_01_02", is_a<dvc_pnl_ceh_contents_hdl_d_04_01_02>,
       {{1695, 1696}}},
      {"d_04_03_02", is_a<dvc_pnl_ceh_contents_hdl_d_04_03_02>,
       {{295, 299}, {307, 307}, {309, 309}, {312, 316}, {318, 318}, {323, 323}, {325, 329},
        {332, 332}, {334, 334}, {336, 336}, {338, 342}, {344, 344}, {350, 351}, {358, 362},
        {364, 364}, {370, 370}, {382, 385}, {389, 391}, {394, 397}, {399, 399}, {401, 403}}},
      {"d_04_03_03", is_a<dvc_pnl_ceh_contents_hdl_d_04_03_03>,
       {{300, 300}, {306, 306}, {317, 317}, {330, 330}, {333, 333}, {343, 343}, {363, 363},
        {386, 386}, {398, 398}}},
      {"d_04_03_05", is_a<dvc_pnl_ceh_contents_hdl_d_04_03_05>,
       {{219, 219}, {224, 228}, {230, 234}, {242, 244}, {252, 255}, {269, 269}, {271, 275},
        {277, 277}, {347, 347}, {407, 409}, {417, 417}, {422, 428}, {430, 430}, {432, 434},
        {457, 459}, {461, 461}, {483, 483}, {485, 486}, {488, 490}, {499, 499}, {501, 502},
        {504, 506}, {517, 517}, {519, 521}, {527, 527}, {538, 546}, {549, 549}, {554, 563},
        {591, 594}, {596, 596}, {598, 598}, {608, 611}, {772, 774}, {776, 776}, {797, 802},
        {816, 820}, {828, 828}, {883, 883}, {885, 885}, {887, 889}, {892, 893}, {895, 895},
        {1002, 1007}, {1022, 1022}, {1057, 1057}, {1062, 1062}, {1068, 1068}, {1071, 1073},
        {1081, 1081}, {1123, 1123}, {1237, 1240}, {1242, 1242}, {1244, 1244}, {1257, 1258},
        {1388, 1393}, {1400, 1404}, {1429, 1430}, {1455, 1456}, {1463, 1463}, {1467, 1467},
        {1469, 1472}, {1475, 1475}, {1508, 1514}, {1531, 1534}, {1551, 1554}, {1560, 1567},
        {1574, 1576}, {1582, 1582}, {1646, 1647}, {1649, 1650}, {1691, 1691}, {1726, 1730},
        {2191, 2192}, {2194, 2197}, {2199, 2199}}},
      {"d_04_03_06", is_a<dvc_pnl_ceh_contents_hdl_d_04_03_06>,
       {{431, 431}, {487, 487}, {503, 503}, {518, 518}, {2193, 2193}, {2198, 2198}}},
      {"d_04_03_07", is_a<dvc_pnl_ceh_contents_hdl_d_04_03_07>,
       {{220, 223}, {245, 246}, {270, 270}, {595, 595}, {1058, 1061}, {1241, 1241}}},
      {"d_04_03_09", is_a<dvc_pnl_ceh_contents_hdl_d_04_03_09>,
       {{373, 374}, {584, 585}, {597, 597}, {647, 647}, {708, 709}, {744, 745}, {775, 775},
        {990, 991}, {997, 998}, {1155, 1159}, {1162, 1165}, {1243, 1243}, {1557, 1557},
        {1648, 1648}}},
      {"d_04_03_15", is_a<dvc_pnl_ceh_contents_hdl_d_04_03_15>,
       {{992, 992}, {999, 999}}},
      {"d_04_03_16", is_a<dvc_pnl_ceh_contents_hdl_d_04_03_16>,
       {{821, 821}, {1161, 1161}}},
      {"d_04_04_01", is_a<dvc_pnl_ceh_contents_hdl_d_04_04_01>,
       {{352, 353}, {371, 371}, {414, 414}, {416, 416}}},
      {"d_04_05", is_a<dvc_pnl_ceh_contents_hdl_d_04_05>,
       {{355, 355}}},
      {"d_04_06", is_a<dvc_pnl_ceh_contents_hdl_d_04_06>,
       {{354, 354}}},
      {"d_04_07", is_a<dvc_pnl_ceh_contents_hdl_d_04_07>,
       {{119, 119}, {197, 200}, {208, 208}, {210, 212}, {217, 218}, {247, 250}, {301, 301},
        {308, 308}, {320, 320}, {322, 322}, {331, 331}, {335, 335}, {348, 349}, {366, 366},
        {368, 368}, {375, 375}, {388, 388}, {392, 392}, {400, 400}, {404, 404}, {460, 460},
        {484, 484}, {500, 500}, {522, 522}, {601, 601}, {605, 605}, {612, 614}, {648, 648},
        {777, 779}, {803, 803}, {827, 827}, {829, 830}, {1077, 1077}, {1199, 1205}, {1431, 1431},
        {1438, 1438}, {1473, 1473}, {1731, 1731}, {1738, 1738}, {1747, 1747}, {1749, 1750},
        {1868, 1875}, {1877, 1880}, {1882, 1883}, {1887, 1887}, {1889, 1889}, {1891, 1891},
        {1896, 1896}, {1900, 1900}, {1906, 1906}, {1908, 1908}, {1910, 1910}, {1912, 1912},
        {1915, 1916}, {2200, 2200}, {2205, 2205}}},
      {"d_04_08", is_a<dvc_pnl_ceh_contents_hdl_d_04_08>,
       {{405, 405}}},
      {"d_04_09", is_a<dvc_pnl_ceh_contents_hdl_d_04_09>,
       {{166, 166}, {303, 303}, {533, 533}, {620, 620}, {727, 727}, {806, 806}, {813, 813},
        {1424, 1424}, {1452, 1452}, {1490, 1490}, {1587, 1587}, {1608, 1608}, {1616, 1616},
        {1710, 1710}, {1714, 1714}, {1748, 1748}, {1751, 1752}, {1756, 1756}, {1762, 1762},
        {1897, 1897}, {1903, 1903}, {2080, 2080}, {2180, 2180}, {2203, 2203}, {2208, 2208}}},
      {"d_04_10", is_a<dvc_pnl_ceh_contents_hdl_d_04_10>,
       {{1697, 1698}}},
      {"d_04_12", is_a<dvc_pnl_ceh_contents_hdl_d_04_12>,
       {{1885, 1885}, {1894, 1894}}},
      {"d_05_01", is_a<dvc_pnl_ceh_contents_hdl_d_05_01>,
       {{137, 137}, {1595, 1595}, {1664, 1664}}},
      {"d_06_03", is_a<dvc_pnl_ceh_contents_hdl_d_06_03>,
       {{536, 536}, {902, 903}, {1668, 1668}, {1888, 1888}, {1890, 1890}}},
      {"d_06_04", is_a<dvc_pnl_ceh_contents_hdl_d_06_04>,
       {{79, 79}, {970, 971}, {1167, 1168}}},
      {"d_06_06", is_a<dvc_pnl_ceh_contents_hdl_d_06_06>,
       {{16, 16}, {49, 52}, {263, 263}, {491, 491}, {507, 507}, {534, 534}, {551, 551}, {573, 573},
        {575, 575}, {577, 577}, {736, 736}, {844, 844}, {854, 854}, {858, 858}, {891, 891},
        {904, 907}, {916, 919}, {947, 950}, {982, 983}, {988, 988}, {1014, 1014}, {1026, 1026},
        {1030, 1030}, {1065, 1065}, {1086, 1089}, {1092, 1099}, {1105, 1105}, {1109, 1110},
        {1116, 1116}, {1144, 1144}, {1169, 1169}, {1173, 1173}, {1175, 1175}, {1178, 1179},
        {1192, 1192}, {1194, 1197}, {1208, 1208}, {1210, 1210}, {1212, 1212}, {1317, 1317},
        {1351, 1351}, {1355, 1355}, {1446, 1446}, {1480, 1481}, {1500, 1500}, {1526, 1526},
        {1529, 1529}, {1537, 1537}, {1590, 1590}, {1626, 1626}, {1661, 1661}, {1669, 1669},
        {1681, 1681}, {1792, 1793}, {1811, 1812}, {2175, 2176}}},
      {"d_06_07", is_a<dvc_pnl_ceh_contents_hdl_d_06_07>,
       {{1603, 1603}}},
      {"d_08_01", is_a<dvc_pnl_ceh_contents_hdl_d_08_01>,
       {{837, 839}, {1907, 1907}, {1909, 1909}, {1911, 1911}}},
      {"d_08_02_01", is_a<dvc_pnl_ceh_contents_hdl_d_08_02_01>,
       {{72, 72}, {87, 88}, {92, 92}, {122, 122}, {136, 136}, {141, 142}, {144, 145}, {157, 157},
        {159, 164}, {170, 171}, {184, 188}, {191, 193}, {205, 205}, {213, 213}, {237, 237},
        {251, 251}, {267, 268}, {420, 420}, {436, 436}, {468, 468}, {512, 512}, {523, 523},
        {526, 526}, {532, 532}, {535, 535}, {550, 550}, {564, 564}, {567, 567}, {571, 572},
        {599, 600}, {602, 604}, {660, 660}, {674, 674}, {678, 678}, {748, 748}, {752, 752},
        {842, 842}, {849, 849}, {861, 862}, {865, 865}, {877, 877}, {882, 882}, {884, 884},
        {896, 896}, {957, 957}, {1009, 1009}, {1012, 1013}, {1021, 1021}, {1025, 1025},
        {1031, 1031}, {1063, 1063}, {1069, 1069}, {1082, 1082}, {1119, 1119}, {1245, 1250},
        {1260, 1261}, {1282, 1282}, {1322, 1322}, {1331, 1331}, {1417, 1417}, {1419, 1420},
        {1436, 1436}, {1439, 1439}, {1444, 1444}, {1464, 1464}, {1468, 1468}, {1487, 1487},
        {1515, 1515}, {1517, 1520}, {1525, 1525}, {1528, 1528}, {1530, 1530}, {1536, 1536},
        {1538, 1541}, {1555, 1556}, {1585, 1585}, {1600, 1600}, {1639, 1641}, {1689, 1690},
        {1902, 1902}, {2136, 2137}, {2141, 2141}, {2183, 2183}, {2235, 2237}}},
      {"d_08_02_03", is_a<dvc_pnl_ceh_contents_hdl_d_08_02_03>,
       {{278, 278}}},
      {"d_08_02_04", is_a<dvc_pnl_ceh_contents_hdl_d_08_02_04>,
       {{175, 177}, {182, 182}, {189, 190}, {256, 257}, {279, 279}, {283, 284}, {286, 286},
        {291, 291}, {1008, 1008}, {1029, 1029}, {1034, 1034}, {1038, 1038}, {1040, 1040},
        {1064, 1064}, {1133, 1133}, {1183, 1184}, {1187, 1187}, {1191, 1191}}},
      {"d_08_05", is_a<dvc_pnl_ceh_contents_hdl_d_08_05>,
       {{482, 482}, {878, 878}, {886, 886}, {2142, 2142}}},
      {"d_08_10", is_a<dvc_pnl_ceh_contents_hdl_d_08_10>,
       {{158, 158}}},
      {"d_08_11", is_a<dvc_pnl_ceh_contents_hdl_d_08_11>,
       {{2138, 2139}, {2238, 2239}}},
      {"d_08_12", is_a<dvc_pnl_ceh_contents_hdl_d_08_12>,
       {{1623, 1623}, {1625, 1625}, {1627, 1627}, {1630, 1630}, {1633, 1633}}},
      {"d_mnt_000", is_a<dvc_pnl_ceh_contents_hdl_d_mnt_000>,
       {{2243, 2243}}},
      {"d_mnt_001", is_a<dvc_pnl_ceh_contents_hdl_d_mnt_001>,
       {{2244, 2244}}},
      {"d_mnt_002", is_a<dvc_pnl_ceh_contents_hdl_d_mnt_002>,
       {{2245, 2245}}},
      {"d_mnt_003", is_a<dvc_pnl_ceh_contents_hdl_d_mnt_003>,
       {{2246, 2246}}},
      {"d_mnt_004", is_a<dvc_pnl_ceh_contents_hdl_d_mnt_004>,
       {{2247, 2247}}},
      {"d_mnt_005", is_a<dvc_pnl_ceh_contents_hdl_d_mnt_005>,
       {{2248, 2248}}},
      {"d_mnt_006", is_a<dvc_pnl_ceh_contents_hdl_d_mnt_006>,
       {{2249, 2249}}},
      // clang-format on
  };
  return table;
}

bool routed(int id) {
  for (const family_case& f : families()) {
    if (in(f.ids, id))
      return true;
  }
  return false;
}

dvc_pnl_ceh_contents_proc_factory* factory() {
  return dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance();
}

dvc_pnl_psm_page_stack_matrix* psm() {
  return dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance();
}

class ContentsFactory : public ::testing::Test {
 protected:
  void SetUp() override {
    host::reset();
    host::trace_sink::instance().clear();
  }
  void TearDown() override { host::reset(); }

  static std::unique_ptr<dvc_pnl_ceh_contents_interface> create(int id) {
    return std::unique_ptr<dvc_pnl_ceh_contents_interface>(
        factory()->dvc_pnl_ceh_create_contents_proc_class(id, nullptr));
  }
};

TEST_F(ContentsFactory, OneInstance) {
  ASSERT_NE(factory(), nullptr);
  EXPECT_EQ(factory(), dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance());
}

TEST_F(ContentsFactory, EveryFamilyIdMakesItsClassWithTheId) {
  int made = 0;
  for (const family_case& f : families()) {
    for (const auto& [first, last] : f.ids) {
      for (int id = first; id <= last; ++id) {
        auto contents = create(id);
        ASSERT_NE(contents, nullptr) << f.family << " " << id;
        const dvc_pnl_ceh_contents_interface& made_object = *contents;
        EXPECT_TRUE(f.is(contents.get()))
            << f.family << " " << id << " made " << typeid(made_object).name();
        auto* handler = dynamic_cast<dvc_pnl_ceh_contents_hdl_base*>(contents.get());
        ASSERT_NE(handler, nullptr) << id;
        EXPECT_EQ(handler->get_contents_id(), id);
        // The host's layouts know every id by the family the factory routes it to.
        std::string layout;
        unsigned long attributes = 0;
        EXPECT_EQ(dvc_pnl_cly_get_layout_name(id, layout, attributes), 0) << id;
        EXPECT_EQ(layout, f.family) << id;
        ++made;
      }
    }
  }
  EXPECT_EQ(made, 2200);
  EXPECT_EQ(families().size(), 77u);
}

TEST_F(ContentsFactory, IdsWithoutFamilyMakeNothingAndTraceNothing) {
  int refused = 0;
  for (int id = -5; id <= DVC_PNL_CEH_CONTENTS_ID_MAX + 5; ++id) {
    if (routed(id))
      continue;
    EXPECT_EQ(create(id), nullptr) << id;
    ++refused;
  }
  // 0 to 2249 less the routed ids, and the ten probes beyond the ends.
  EXPECT_EQ(refused, 2250 - 2200 + 10);
  for (int id : {10, 537, 1702, 2190, 2250, static_cast<int>(CID_TOP), static_cast<int>(CID_PARENT),
                 static_cast<int>(CID_NONE), -1, INT_MIN, INT_MAX})
    EXPECT_EQ(create(id), nullptr) << id;
  EXPECT_TRUE(host::trace_sink::instance().lines().empty()) << test::trace_dump();
}

TEST_F(ContentsFactory, EdgeIds) {
  EXPECT_TRUE(is_a<dvc_pnl_ceh_contents_hdl_d_mnt_006>(create(2249).get()));
  EXPECT_TRUE(is_a<dvc_pnl_ceh_contents_hdl_d_03_05>(create(CID_08_05_N1).get()));
  EXPECT_TRUE(is_a<dvc_pnl_ceh_contents_hdl_d_03_05>(create(CID_UNNAMED_2058).get()));
  EXPECT_TRUE(is_a<dvc_pnl_ceh_contents_hdl_d_03_14>(create(CID_UNNAMED_2081).get()));
  EXPECT_TRUE(is_a<dvc_pnl_ceh_contents_hdl_d_07_05>(create(CID_UNNAMED_2174).get()));
  EXPECT_TRUE(is_a<dvc_pnl_ceh_contents_hdl_d_07_01>(create(CID_01_01_N1).get()));
}

// ---- group and state ----

// Rows of the group table: ids, group with and without the Wi-Fi Direct login.
struct group_row {
  id_ranges ids;
  int w_on;
  int w_off;
};
const std::vector<group_row>& group_rows() {
  static const std::vector<group_row> table = {
      // clang-format off
      {{{805, 830}, {1948, 1948}}, 5, 5},
      {{{1746, 1746}}, 2, 2},
      {{{1747, 1754}}, 3, 3},
      {{{1755, 1756}}, 10, 10},
      {{{1761, 1764}, {2096, 2096}, {2201, 2204}, {2208, 2209}}, 7, 7},
      {{{1991, 1993}, {1995, 1995}, {2003, 2003}, {2059, 2059}, {2067, 2067}, {2084, 2084},
        {2106, 2108}, {2116, 2117}, {2134, 2147}, {2149, 2153}, {2162, 2174}, {2176, 2176},
        {2178, 2178}}, 5, 0},
      // clang-format on
  };
  return table;
}

// Rows of the state table: ids; state with the Wi-Fi Direct login; without it under the status
// function; without it under copy, with users managed (mode 1).
struct state_row {
  id_ranges ids;
  int w_on;
  int off_status;
  int off_copy;
};
const std::vector<state_row>& state_rows() {
  static const std::vector<state_row> table = {
      // clang-format off
      {{{805, 830}, {1948, 1948}}, 11, 11, 11},
      {{{1746, 1746}}, 8, 8, 8},
      {{{1747, 1754}}, 9, 9, 9},
      {{{1755, 1756}}, 10, 10, 10},
      {{{1761, 1764}, {2096, 2096}, {2201, 2204}, {2208, 2209}}, 13, 13, 13},
      {{{0, 0}, {3, 3}, {6, 6}, {7, 7}, {292, 292}, {418, 418}, {582, 582},
        {2243, 2243}}, 3, 3, 3},
      {{{2179, 2179}}, 6, 6, 6},
      {{{1765, 1773}, {1775, 1775}, {1779, 1790}, {1792, 1807}, {1810, 1815}, {1822, 1822},
        {1824, 1828}, {1830, 1830}, {1832, 1842}, {1844, 1845}, {1849, 1849}, {1855, 1855},
        {1857, 1857}, {1859, 1860}, {1865, 1866}, {1868, 1868}, {1870, 1874},
        {1997, 1998}}, 1, 1, 1},
      {{{158, 158}}, 2, 2, 2},
      {{{1991, 1991}, {2135, 2139}, {2141, 2141}, {2143, 2153}, {2162, 2168}, {2170, 2172},
        {2174, 2174}, {2176, 2176}, {2178, 2178}}, 11, 0, 0},
      {{{1992, 1993}, {1995, 1995}, {2003, 2003}, {2059, 2059}, {2067, 2067}, {2084, 2084},
        {2106, 2108}, {2116, 2117}}, 11, 2, 2},
      {{{2142, 2142}}, 11, 2, 0},
      {{{2134, 2134}, {2140, 2140}, {2169, 2169}, {2173, 2173}}, 11, 2, 0},
      // clang-format on
  };
  return table;
}

constexpr int kStatus = 9;
constexpr int kSystemMenu = 10;
constexpr int kCopy = 1;
constexpr int kKeyPage = 1765;

class ContentsClass : public ContentsFactory {
 protected:
  static void set_function(int function) {
    ASSERT_EQ(psm()->dvc_pnl_psm_change_function(function), 0);
  }
  static void store_key_page(int page) {
    ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(
                  DVC_PNL_PDM_CEH_WIFI_DIRECT_KEY_PAGE_ID, page),
              0);
  }
  static void set_management(int mode) {
    ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_AUTHENTICATION_MODE,
                                                                    mode),
              0);
  }
  // W on: the status function with a stored key page.
  static void wifi_direct_on() {
    set_function(kStatus);
    store_key_page(kKeyPage);
  }
  static int group(int id) { return factory()->dvc_pnl_ceh_get_contents_class_group(id); }
  static int state(int id) { return factory()->dvc_pnl_ceh_get_contents_class_state(id); }

  // Checks every id 0 to 2249 against the rows, the others against `other`.
  template <class Row, class Expect>
  static void check_all(const std::vector<Row>& rows, Expect expect, int other,
                        int (*classify)(int), const char* what) {
    for (int id = 0; id <= DVC_PNL_CEH_CONTENTS_ID_MAX; ++id) {
      int want = other;
      for (const Row& row : rows) {
        if (in(row.ids, id))
          want = expect(row);
      }
      EXPECT_EQ(classify(id), want) << what << " of " << id;
    }
    for (int id : {-1, 2250, static_cast<int>(CID_TOP), static_cast<int>(CID_PARENT),
                   static_cast<int>(CID_NONE)})
      EXPECT_EQ(classify(id), other) << what << " of " << id;
  }
};

TEST_F(ContentsClass, GroupWithWifiDirectLogin) {
  wifi_direct_on();
  check_all(
      group_rows(), [](const group_row& r) { return r.w_on; }, 0, group, "group");
}

TEST_F(ContentsClass, GroupWithoutKeyPageUnderStatus) {
  set_function(kStatus);
  check_all(
      group_rows(), [](const group_row& r) { return r.w_off; }, 0, group, "group");
}

TEST_F(ContentsClass, GroupWithKeyPageUnderAnotherFunction) {
  store_key_page(kKeyPage);
  for (int function : {kCopy, kSystemMenu, 3}) {
    set_function(function);
    check_all(
        group_rows(), [](const group_row& r) { return r.w_off; }, 0, group, "group");
  }
}

TEST_F(ContentsClass, StateWithWifiDirectLogin) {
  wifi_direct_on();
  set_management(1);
  check_all(
      state_rows(), [](const state_row& r) { return r.w_on; }, 2, state, "state");
}

TEST_F(ContentsClass, StateWithoutKeyPageUnderStatus) {
  set_function(kStatus);
  set_management(1);
  check_all(
      state_rows(), [](const state_row& r) { return r.off_status; }, 2, state, "state");
}

TEST_F(ContentsClass, StateWithKeyPageUnderCopy) {
  store_key_page(kKeyPage);
  set_function(kCopy);
  set_management(1);
  check_all(
      state_rows(), [](const state_row& r) { return r.off_copy; }, 2, state, "state");
}

TEST_F(ContentsClass, KeyPageStoredAsNoneOrUnreadableCountsAsNotStored) {
  set_function(kStatus);
  store_key_page(CID_NONE);
  EXPECT_EQ(group(2134), 0);
  EXPECT_EQ(state(2135), 0);
  store_key_page(kKeyPage);
  EXPECT_EQ(group(2134), 5);
  host::host_data_manager::instance().fail_next(host::dm_op::get);
  EXPECT_EQ(group(2134), 0);
  host::host_data_manager::instance().fail_next(host::dm_op::get);
  EXPECT_EQ(state(2135), 0);
  EXPECT_EQ(state(2135), 11);
}

TEST_F(ContentsClass, AccountEntryFollowsTheFunction) {
  store_key_page(kKeyPage);
  const std::pair<int, int> cases[] = {{kCopy, 0}, {kStatus, 11}, {kSystemMenu, 2}, {3, 0}};
  for (const auto& [function, want] : cases) {
    set_function(function);
    EXPECT_EQ(state(CID_11_02_N1), want) << function;
    EXPECT_EQ(group(CID_11_02_N1), function == kStatus ? 5 : 0) << function;
  }
  // The account entry never asks for the user management.
  EXPECT_FALSE(traced("management = 0")) << test::trace_dump();
}

TEST_F(ContentsClass, LoginPagesUnderCopyFollowTheUserManagement) {
  set_function(kCopy);
  const std::pair<int, int> modes[] = {{1, 0}, {3, 0}, {0, 2}, {2, 2}, {4, 2}};
  for (const auto& [mode, want] : modes) {
    set_management(mode);
    for (int id : {2134, 2140, 2169, 2173}) {
      host::trace_sink::instance().clear();
      EXPECT_EQ(state(id), want) << "mode " << mode << " id " << id;
      EXPECT_TRUE(traced("management = " + std::to_string(mode))) << test::trace_dump();
    }
  }
  // No mode stored: the read fails and counts as no user management.
  host::host_data_manager::instance().reset();
  EXPECT_EQ(state(2134), 2);
}

TEST_F(ContentsClass, LoginPagesUnderStatusOrSystemMenuAreOrdinaryPages) {
  set_management(1);
  for (int function : {kStatus, kSystemMenu}) {
    set_function(function);
    host::trace_sink::instance().clear();
    for (int id : {2134, 2140, 2169, 2173})
      EXPECT_EQ(state(id), 2) << function << " " << id;
    // The function decides before the user management is asked.
    EXPECT_FALSE(traced("management = 1")) << test::trace_dump();
  }
}

TEST_F(ContentsClass, DigitCodeEntryFollowsTheLoginWindowOfTheActiveFunction) {
  for (int function : {kCopy, kStatus, 5}) {
    set_function(function);
    ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY, 1, function),
              0);
    EXPECT_EQ(state(CID_03_01_02_N6), 0) << function;
    ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY, 0, function),
              0);
    EXPECT_EQ(state(CID_03_01_02_N6), 2) << function;
    ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY, 2, function),
              0);
    EXPECT_EQ(state(CID_03_01_02_N6), 2) << function;
  }
  // The flag of another function does not count.
  set_function(kCopy);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY, 0, kCopy), 0);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY, 1, kStatus),
            0);
  EXPECT_EQ(state(CID_03_01_02_N6), 2);
  // Unreadable: not stored, or the manager fails.
  host::host_data_manager::instance().reset();
  EXPECT_EQ(state(CID_03_01_02_N6), 2);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY, 1, kCopy), 0);
  host::host_data_manager::instance().fail_next(host::dm_op::get);
  EXPECT_EQ(state(CID_03_01_02_N6), 2);
  EXPECT_EQ(state(CID_03_01_02_N6), 0);
  EXPECT_EQ(group(CID_03_01_02_N6), 0);
}

TEST_F(ContentsClass, MessageAmongLoginPagesKeepsGroupZero) {
  wifi_direct_on();
  EXPECT_EQ(group(2147), 5);
  EXPECT_EQ(group(2148), 0);
  EXPECT_EQ(group(2149), 5);
  EXPECT_EQ(state(2148), 11);
  set_function(kCopy);
  EXPECT_EQ(state(2148), 0);
}

// ---- the user management query the classifier uses ----

class ManagementQuery : public ContentsFactory {};

TEST_F(ManagementQuery, AnswersTheStoredModeAndTracesIt) {
  for (int mode : {0, 1, 2, 3}) {
    ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_AUTHENTICATION_MODE,
                                                                    mode),
              0);
    host::trace_sink::instance().clear();
    EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_management(), mode);
    EXPECT_TRUE(traced("management = " + std::to_string(mode))) << test::trace_dump();
  }
}

TEST_F(ManagementQuery, FallsBackToZeroOnAFailedRead) {
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_management(), 0);
  EXPECT_TRUE(traced("management = 0")) << test::trace_dump();
  ASSERT_EQ(
      dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_AUTHENTICATION_MODE, 3), 0);
  host::trace_sink::instance().clear();
  host::host_data_manager::instance().fail_next(host::dm_op::get);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_management(), 0);
  EXPECT_TRUE(traced("management = 0")) << test::trace_dump();
}

}  // namespace
}  // namespace orvanta
