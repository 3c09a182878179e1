// The plain records that screens edit and hand on in the data manager (users, job accounting
// accounts, boxes, address book entries, proxy settings), their reads and their writes.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orvanta {

inline constexpr std::size_t DVC_PNL_CEH_ACCOUNT_NAME_SIZE = 1152;
inline constexpr std::size_t DVC_PNL_CEH_ACCOUNT_CODE_SIZE = 8;

// One job accounting account, as the screens hand it on in the data manager. 2,392 bytes; every
// text is terminated and cut to its field.
struct ACCOUNT_DETAIL {
  std::int32_t account_id;                        // 1362
  char name[DVC_PNL_CEH_ACCOUNT_NAME_SIZE];       // 1367
  char code[DVC_PNL_CEH_ACCOUNT_CODE_SIZE];       // 1366
  char text_1368[DVC_PNL_CEH_ACCOUNT_NAME_SIZE];  // 1368
  // Restriction fields: 2 refuses the function they stand for.
  std::int32_t restriction_1369;
  std::int32_t restriction_1372;
  std::int32_t restriction_1374;
  std::int32_t restriction_1375;
  std::int32_t restriction_1385;
  // The limit behind each restriction mode; it goes to the machine only with its mode 1.
  std::int32_t limit_1377;     // of 1369
  std::int32_t limit_1380;     // of 1372
  std::int32_t limit_1382;     // of 1374
  std::int32_t limit_1383;     // of 1375
  std::int32_t limit_1386;     // of 1385
  unsigned char reserved[36];  // up to the record's size
};
static_assert(sizeof(ACCOUNT_DETAIL) == 2392);

// Reads account `id` with the command 0.679.843.584. 0 with the record filled (zeroed first);
// 2 when RESULT is not 0, the record as it came; 3 when the command could not run; otherwise the
// code of the first failed field read, with the fields read so far.
int dvc_pnl_ceh_contents_hdl_get_job_accounting_detail_from_cmm(long id, ACCOUNT_DETAIL& account);

// The job accounting record of the guest: the account named in the guest's user record (node
// 1362 of 0.681.843.584), read as above. Answers as that read, or the code of the failed step
// before it, with the record as it came.
int dvc_pnl_ceh_contents_hdl_get_guest_user_job_accounting_detail_from_cmm(ACCOUNT_DETAIL& account);

// ---- user records ----

// Field sizes of USER_LOGIN, terminator included.
inline constexpr std::size_t DVC_PNL_CEH_USER_LOGIN_NAME_SIZE = 65;  // 504
inline constexpr std::size_t DVC_PNL_CEH_USER_PASSWORD_SIZE = 65;    // 1360
inline constexpr std::size_t DVC_PNL_CEH_USER_TEXT_SIZE = 1153;      // 1037, 1361, 1367
inline constexpr std::size_t DVC_PNL_CEH_USER_MAIL_SIZE = 129;       // 10
inline constexpr std::size_t DVC_PNL_CEH_USER_TEXT_3616_SIZE = 129;  // 3616
// The permissions 3060 to 3068, one word each.
inline constexpr int DVC_PNL_CEH_USER_PERMISSION_COUNT = 9;
inline constexpr unsigned long DVC_PNL_CEH_USER_FIRST_PERMISSION = 3060;

// One user of the machine, as the user screens edit it. 4,724 bytes. The fields follow the record
// read (0.681.843.584), then those that only the change sends.
struct USER_LOGIN {
  std::int32_t user_number;                                    // 1365
  char login_name[DVC_PNL_CEH_USER_LOGIN_NAME_SIZE];           // 504
  char password[DVC_PNL_CEH_USER_PASSWORD_SIZE];               // 1360
  char name[DVC_PNL_CEH_USER_TEXT_SIZE];                       // 1037
  char text_1361[DVC_PNL_CEH_USER_TEXT_SIZE];                  // 1361
  std::int32_t account_id;                                     // 1362
  char account_name[DVC_PNL_CEH_USER_TEXT_SIZE];               // 1367
  char mail[DVC_PNL_CEH_USER_MAIL_SIZE];                       // 10
  std::int32_t value_1363;                                     // 1363
  std::int32_t permission[DVC_PNL_CEH_USER_PERMISSION_COUNT];  // 3060 to 3068
  std::int32_t permission_3537;                                // 3537
  std::int32_t language;                                       // 3170
  std::int32_t option_language;                                // 3891
  std::int32_t default_screen_kind;                            // 348: 1 and 8 carry a screen
  std::int32_t default_screen;                                 // 3172: 1 and 2 carry a book setting
  std::int32_t address_book_setting;                           // 3189
  char text_3616[DVC_PNL_CEH_USER_TEXT_3616_SIZE];             // 3616
  std::int32_t card;                                           // 2039, with a card reader
  unsigned char reserved[796];                                 // up to the record's size
};
static_assert(sizeof(USER_LOGIN) == 4724);

// ---- boxes ----

// Field sizes of BOX_INFO, terminator included.
inline constexpr std::size_t DVC_PNL_CEH_BOX_NAME_SIZE = 1153;       // 1347
inline constexpr std::size_t DVC_PNL_CEH_BOX_OWNER_NAME_SIZE = 193;  // 1350
inline constexpr std::size_t DVC_PNL_CEH_BOX_TEXT_2672_SIZE = 193;   // 2672
inline constexpr std::size_t DVC_PNL_CEH_BOX_DOMAIN_SIZE = 1538;     // 509
inline constexpr std::size_t DVC_PNL_CEH_BOX_TEXT_219_SIZE = 65;     // 219

// The box id of a record the machine has not made a box of yet.
inline constexpr long DVC_PNL_CEH_BOX_ID_NEW = 0;
// Box kind (1180) of the custom boxes, the normal kind.
inline constexpr long DVC_PNL_CEH_BOX_KIND_NORMAL = 1;
// Owner kind (1327) of a box that a user owns.
inline constexpr long DVC_PNL_CEH_BOX_OWNER_USER = 1;

// One box, as the box screens edit it. 3,804 bytes. The box id, then the fields of the box read
// (0.857.860.584) in its order, then those that only the writes send.
struct BOX_INFO {
  std::int32_t box_id;                               // 197; DVC_PNL_CEH_BOX_ID_NEW: not made
  std::int32_t kind;                                 // 1180
  std::int32_t value_1346;                           // 1346
  char name[DVC_PNL_CEH_BOX_NAME_SIZE];              // 1347
  char owner_name[DVC_PNL_CEH_BOX_OWNER_NAME_SIZE];  // 1350
  std::int32_t value_1351;                           // 1351
  std::int32_t value_1352;                           // 1352: 1 sends the text at 219
  std::int32_t value_1114;                           // 1114
  std::int32_t size;                                 // 1529, kilobytes in the box
  std::int32_t file_count;                           // 1887
  std::int32_t owner_kind;                           // 1327
  std::int32_t owner_id;                             // 1012
  std::int32_t value_1363;                           // 1363
  std::int32_t value_2468;                           // 2468: 1 sends 2672 and 509, 0 sends 1349
  char text_2672[DVC_PNL_CEH_BOX_TEXT_2672_SIZE];    // 2672
  char domain[DVC_PNL_CEH_BOX_DOMAIN_SIZE];          // 509; empty: the machine's stored one
  std::int32_t value_1349;                           // 1349
  char text_219[DVC_PNL_CEH_BOX_TEXT_219_SIZE];      // 219
  std::int32_t value_1354;                           // 1354
  std::int32_t value_2202;                           // 2202: 1 sends the capacity limit
  std::int32_t capacity_limit;                       // 1355, megabytes
  std::int32_t value_531;                            // 531
  std::int32_t value_2780;                           // 2780
  unsigned char reserved[584];                       // up to the record's size
};
static_assert(sizeof(BOX_INFO) == 3804);

// ---- address book entries ----

// Field sizes of ADDRESS_BOOK_INDIVIDUAL.
inline constexpr std::size_t DVC_PNL_CEH_ADDRESS_NAME_SIZE = 1152;       // 1562, 2349, 2350
inline constexpr std::size_t DVC_PNL_CEH_ADDRESS_READING_SIZE = 192;     // 1563
inline constexpr std::size_t DVC_PNL_CEH_ADDRESS_FAX_SIZE = 64;          // 1404
inline constexpr std::size_t DVC_PNL_CEH_ADDRESS_SUBADDRESS_SIZE = 20;   // 218, 1410
inline constexpr std::size_t DVC_PNL_CEH_ADDRESS_MAIL_SIZE = 128;        // 10
inline constexpr std::size_t DVC_PNL_CEH_ADDRESS_HOST_SIZE = 384;        // 1438, 1443
inline constexpr std::size_t DVC_PNL_CEH_ADDRESS_PATH_SIZE = 768;        // 1439, 1444, 1441, 1446
inline constexpr std::size_t DVC_PNL_CEH_ADDRESS_PASSWORD_SIZE = 128;    // 1442, 1447
inline constexpr std::size_t DVC_PNL_CEH_ADDRESS_TEXT_2351_SIZE = 2304;  // 2351

// One contact of the address book (the personal address record). 10,392 bytes.
struct ADDRESS_BOOK_INDIVIDUAL {
  std::int32_t id;                                       // the entry's own number
  std::int32_t contact_kind;                             // 1436
  char name[DVC_PNL_CEH_ADDRESS_NAME_SIZE];              // 1562
  char reading[DVC_PNL_CEH_ADDRESS_READING_SIZE];        // 1563
  char fax_number[DVC_PNL_CEH_ADDRESS_FAX_SIZE];         // 1404
  char subaddress[DVC_PNL_CEH_ADDRESS_SUBADDRESS_SIZE];  // 218
  char text_1410[DVC_PNL_CEH_ADDRESS_SUBADDRESS_SIZE];   // 1410
  std::int32_t value_1411_to_1416[6];                    // 1411 to 1416
  char mail[DVC_PNL_CEH_ADDRESS_MAIL_SIZE];              // 10
  char smb_host[DVC_PNL_CEH_ADDRESS_HOST_SIZE];          // 1438
  char smb_path[DVC_PNL_CEH_ADDRESS_PATH_SIZE];          // 1439
  std::int32_t smb_port;                                 // 1440
  char smb_user[DVC_PNL_CEH_ADDRESS_PATH_SIZE];          // 1441
  char smb_password[DVC_PNL_CEH_ADDRESS_PASSWORD_SIZE];  // 1442
  char ftp_host[DVC_PNL_CEH_ADDRESS_HOST_SIZE];          // 1443
  char ftp_path[DVC_PNL_CEH_ADDRESS_PATH_SIZE];          // 1444
  std::int32_t ftp_port;                                 // 1445
  char ftp_user[DVC_PNL_CEH_ADDRESS_PATH_SIZE];          // 1446
  char ftp_password[DVC_PNL_CEH_ADDRESS_PASSWORD_SIZE];  // 1447
  // Filled only for an address from an external address book.
  char text_2350[DVC_PNL_CEH_ADDRESS_NAME_SIZE];       // 2350
  char text_2349[DVC_PNL_CEH_ADDRESS_NAME_SIZE];       // 2349
  char text_2351[DVC_PNL_CEH_ADDRESS_TEXT_2351_SIZE];  // 2351
  std::int32_t destination_kind;                       // chosen for the record, -1 when fetched
  // 1 when the machine gave a non-empty text.
  std::int32_t has_fax;
  std::int32_t has_mail;
  std::int32_t has_smb_host;
  std::int32_t has_ftp_host;
  std::int32_t word_1;
  std::int32_t word_2;
  unsigned char reserved[44];  // up to the record's size
};
static_assert(sizeof(ADDRESS_BOOK_INDIVIDUAL) == 10392);

inline constexpr int DVC_PNL_CEH_GROUP_MEMBER_MAX = 100;
inline constexpr std::size_t DVC_PNL_CEH_GROUP_NAME_SIZE = 1153;    // 1570, 2026
inline constexpr std::size_t DVC_PNL_CEH_GROUP_READING_SIZE = 193;  // 1571

// One member of a group, 1,168 bytes.
struct ADDRESS_BOOK_GROUP_MEMBER {
  std::int32_t id;                         // 1672
  std::int32_t kind;                       // 1638, the destination kind
  char name[DVC_PNL_CEH_GROUP_NAME_SIZE];  // 2026
  std::int32_t flag;                       // 1 for a member added on the panel
};
static_assert(sizeof(ADDRESS_BOOK_GROUP_MEMBER) == 1168);

// A member taken out of the group on the panel, 12 bytes.
struct ADDRESS_BOOK_GROUP_REMOVED_MEMBER {
  std::int32_t id;
  std::int32_t kind;
  std::int32_t flag;
};
static_assert(sizeof(ADDRESS_BOOK_GROUP_REMOVED_MEMBER) == 12);

// A group of the address book with its members, as the group screens edit it (the group address
// record). 119,368 bytes.
struct ADDRESS_BOOK_GROUP_DETAIL {
  std::int32_t group_id;                         // 1462
  char name[DVC_PNL_CEH_GROUP_NAME_SIZE];        // 1570
  char reading[DVC_PNL_CEH_GROUP_READING_SIZE];  // 1571
  std::int32_t value_2875;                       // 2875
  std::int32_t value_1460;                       // 1460
  std::int32_t member_count;                     // members in use, from the first
  std::int32_t changed;                          // set once the panel changed the members
  ADDRESS_BOOK_GROUP_MEMBER members[DVC_PNL_CEH_GROUP_MEMBER_MAX];
  ADDRESS_BOOK_GROUP_REMOVED_MEMBER removed[DVC_PNL_CEH_GROUP_MEMBER_MAX];
};
static_assert(sizeof(ADDRESS_BOOK_GROUP_DETAIL) == 119368);

// ---- proxy settings ----

inline constexpr std::size_t DVC_PNL_CEH_PROXY_SERVER_SIZE = 256;
inline constexpr std::size_t DVC_PNL_CEH_PROXY_PORT_SIZE = 16;
inline constexpr std::size_t DVC_PNL_CEH_PROXY_NO_PROXY_SIZE = 1024;

// The proxy settings of the network, nodes 2569 to 2574 of the group 0.633.2561.2568.
struct PROXY_SETTING {
  std::int32_t same_proxy;                         // 2569
  char http_serv[DVC_PNL_CEH_PROXY_SERVER_SIZE];   // 2570
  char http_port[DVC_PNL_CEH_PROXY_PORT_SIZE];     // 2571
  char https_serv[DVC_PNL_CEH_PROXY_SERVER_SIZE];  // 2572
  char https_port[DVC_PNL_CEH_PROXY_PORT_SIZE];    // 2573
  char no_proxy[DVC_PNL_CEH_PROXY_NO_PROXY_SIZE];  // 2574
};
static_assert(sizeof(PROXY_SETTING) == 1572);

// ---- writes and edit checks ----

// What an edit screen works on, and so where the record and its size lie in the data manager.
enum EDIT_STRUCT_TYPE : int {
  EDIT_STRUCT_TYPE_ADDBOOK_PERSONAL = 0,  // ADDRESS_BOOK_INDIVIDUAL, DVC_PNL_PDM_ADDRESS_PERSONAL
  EDIT_STRUCT_TYPE_ADDBOOK_GROUP = 1,     // ADDRESS_BOOK_GROUP_DETAIL, DVC_PNL_PDM_ADDRESS_GROUP
  EDIT_STRUCT_TYPE_BOX_INFO = 2,          // BOX_INFO, DVC_PNL_PDM_DVC_CEH_BINARY
  EDIT_STRUCT_TYPE_ACCOUNT_DETAIL = 3,    // ACCOUNT_DETAIL, DVC_PNL_PDM_CEH_ACCOUNT_INFO
  EDIT_STRUCT_TYPE_USER_LOGIN = 4,        // USER_LOGIN, DVC_PNL_PDM_DVC_CEH_BINARY
};

// What a login page needs to know in DVC_PNL_PDM_CEH_AUTHENTICATION_INFO (function scope): why
// it opened, where to go once the user is logged in, and where to go when the login is refused.
// 80 bytes.
inline constexpr std::size_t DVC_PNL_CEH_AUTHENTICATION_USER_SIZE = 64;
struct DVC_PNL_CEH_AUTHENTICATION_INFO {
  std::int32_t kind;  // 1 panel lock or job owner, 2 job owner, 3 a function the guest may not use
  std::int32_t target;   // the page to open after the login
  std::int32_t refused;  // the page to open when the login is refused
  char user_name[DVC_PNL_CEH_AUTHENTICATION_USER_SIZE];  // the job's user, where a job asks
  unsigned char reserved[4];                             // up to the record's size
};
static_assert(sizeof(DVC_PNL_CEH_AUTHENTICATION_INFO) == 80);
inline constexpr std::int32_t DVC_PNL_CEH_AUTHENTICATION_KIND_FUNCTION = 3;

// Sends the changed user to the machine (0.681.843.583, then 0.681.843.2394.2499), as the user
// logged in. 1 when both commands succeeded, 0 otherwise (a NULL `user` included).
int update_user_property(USER_LOGIN* user);
// Sends the changed account (0.679.843.583). 1 on success, 0 otherwise.
int update_job_accounting(ACCOUNT_DETAIL* account);
// Makes a new box (box id DVC_PNL_CEH_BOX_ID_NEW, 0.857.860.351) or changes one (0.857.860.583).
// 1 on success, with `result` set to the number the machine answers (the new box's id, or node
// 1114 of a change); 0 otherwise, `result` as it was. A change of a box that holds more than its
// capacity limit is refused before anything is sent.
int update_custom_box(BOX_INFO box, long& result);

// 1 when the record being edited differs from its backup (DVC_PNL_PDM_DVC_CEH_BINARY_BACKUP),
// both in function scope of `function`, or when `type` is not one of EDIT_STRUCT_TYPE; 0 when they
// are the same. A read that fails answers 0, or 1 for the group record.
int dvc_pnl_ceh_contents_hdl_edit_change_check(EDIT_STRUCT_TYPE type, int function);

// The proxy settings read out of their group; a field that can't be read stays zero.
PROXY_SETTING dvc_pnl_ceh_contents_hdl_get_proxy_from_cm();
// Writes the six proxy settings in their order; 1 when all were written, 0 at the first write
// that fails (the ones before it stay written).
int dvc_pnl_ceh_contents_hdl_set_proxy_to_cm(PROXY_SETTING setting);

}  // namespace orvanta
