// Data manager key objects and the table that finds them by name.
#include "orvanta/host/dm_key_registry.h"

#include <algorithm>

#include "orvanta/platform/dvc_pnl_pdm_keys.h"

namespace orvanta {

const std::string PAGE_SCOPE_DATA_LABEL = "PAGE_SCOPE_DATA_LABEL";
const std::string DVC_PNL_PDM_ACCOUNT_ID = "DVC_PNL_PDM_ACCOUNT_ID";
const std::string DVC_PNL_PDM_ACTIVATE_POWER_SWITCH_WINDOW_STATE =
    "DVC_PNL_PDM_ACTIVATE_POWER_SWITCH_WINDOW_STATE";
const std::string DVC_PNL_PDM_ACT_FLAG = "DVC_PNL_PDM_ACT_FLAG";
const std::string DVC_PNL_PDM_ADDRESS_GROUP = "DVC_PNL_PDM_ADDRESS_GROUP";
const std::string DVC_PNL_PDM_ADDRESS_PERSONAL = "DVC_PNL_PDM_ADDRESS_PERSONAL";
const std::string DVC_PNL_PDM_ADJUSTMENT_MODE = "DVC_PNL_PDM_ADJUSTMENT_MODE";
const std::string DVC_PNL_PDM_AS_PAUSE_PRINT_STATUS = "DVC_PNL_PDM_AS_PAUSE_PRINT_STATUS";
const std::string DVC_PNL_PDM_AUTHENTICATION_ID = "DVC_PNL_PDM_AUTHENTICATION_ID";
const std::string DVC_PNL_PDM_AUTHENTICATION_MODE = "DVC_PNL_PDM_AUTHENTICATION_MODE";
const std::string DVC_PNL_PDM_BOX_BASE_SELECTED_INDEX = "DVC_PNL_PDM_BOX_BASE_SELECTED_INDEX";
const std::string DVC_PNL_PDM_BOX_PATH = "DVC_PNL_PDM_BOX_PATH";
const std::string DVC_PNL_PDM_BOX_PRINT_JOB_ID = "DVC_PNL_PDM_BOX_PRINT_JOB_ID";
const std::string DVC_PNL_PDM_CEH_ACCESS_POINT_INFO = "DVC_PNL_PDM_CEH_ACCESS_POINT_INFO";
const std::string DVC_PNL_PDM_CEH_ACCOUNT_INFO = "DVC_PNL_PDM_CEH_ACCOUNT_INFO";
const std::string DVC_PNL_PDM_CEH_ADDRESS_BOOK_LIST_EXISTENCE =
    "DVC_PNL_PDM_CEH_ADDRESS_BOOK_LIST_EXISTENCE";
const std::string DVC_PNL_PDM_CEH_ADDR_SEARCH_STRING = "DVC_PNL_PDM_CEH_ADDR_SEARCH_STRING";
const std::string DVC_PNL_PDM_CEH_APPLICATION_COUNT = "DVC_PNL_PDM_CEH_APPLICATION_COUNT";
const std::string DVC_PNL_PDM_CEH_APPLICATION_LIST = "DVC_PNL_PDM_CEH_APPLICATION_LIST";
const std::string DVC_PNL_PDM_CEH_APPLICATION_SELECT = "DVC_PNL_PDM_CEH_APPLICATION_SELECT";
const std::string DVC_PNL_PDM_CEH_AUTHENTICATION_ID_RMT = "DVC_PNL_PDM_CEH_AUTHENTICATION_ID_RMT";
const std::string DVC_PNL_PDM_CEH_AUTHENTICATION_INFO = "DVC_PNL_PDM_CEH_AUTHENTICATION_INFO";
const std::string DVC_PNL_PDM_CEH_AUTHENTICATION_INFO_RMT =
    "DVC_PNL_PDM_CEH_AUTHENTICATION_INFO_RMT";
const std::string DVC_PNL_PDM_CEH_AVAILABLE_NETWORK = "DVC_PNL_PDM_CEH_AVAILABLE_NETWORK";
const std::string DVC_PNL_PDM_CEH_BOX_INFO = "DVC_PNL_PDM_CEH_BOX_INFO";
const std::string DVC_PNL_PDM_CEH_CASH_EXT_ADDR_BOOK = "DVC_PNL_PDM_CEH_CASH_EXT_ADDR_BOOK";
const std::string DVC_PNL_PDM_CEH_CHAIN = "DVC_PNL_PDM_CEH_CHAIN";
const std::string DVC_PNL_PDM_CEH_CID_03_02_06_N2_ON_CLOSE_FLG =
    "DVC_PNL_PDM_CEH_CID_03_02_06_N2_ON_CLOSE_FLG";
const std::string DVC_PNL_PDM_CEH_COPY_COLOR_MODE = "DVC_PNL_PDM_CEH_COPY_COLOR_MODE";
const std::string DVC_PNL_PDM_CEH_CUSTOM_BOX_LIST = "DVC_PNL_PDM_CEH_CUSTOM_BOX_LIST";
const std::string DVC_PNL_PDM_CEH_DATA_SANITIZATION_DAY = "DVC_PNL_PDM_CEH_DATA_SANITIZATION_DAY";
const std::string DVC_PNL_PDM_CEH_DATA_SANITIZATION_HOUR = "DVC_PNL_PDM_CEH_DATA_SANITIZATION_HOUR";
const std::string DVC_PNL_PDM_CEH_DATA_SANITIZATION_MONTH =
    "DVC_PNL_PDM_CEH_DATA_SANITIZATION_MONTH";
const std::string DVC_PNL_PDM_CEH_DATA_SANITIZATION_YEAR = "DVC_PNL_PDM_CEH_DATA_SANITIZATION_YEAR";
const std::string DVC_PNL_PDM_CEH_DISP_ADDR_BOOK_CID = "DVC_PNL_PDM_CEH_DISP_ADDR_BOOK_CID";
const std::string DVC_PNL_PDM_CEH_DISP_ADDR_BOOK_MENU_CID =
    "DVC_PNL_PDM_CEH_DISP_ADDR_BOOK_MENU_CID";
const std::string DVC_PNL_PDM_CEH_EDITBOX_CHARACTER_TYPE = "DVC_PNL_PDM_CEH_EDITBOX_CHARACTER_TYPE";
const std::string DVC_PNL_PDM_CEH_FAX_RESULT = "DVC_PNL_PDM_CEH_FAX_RESULT";
const std::string DVC_PNL_PDM_CEH_FUNCTION_LOGIN_BUTTON_INFO =
    "DVC_PNL_PDM_CEH_FUNCTION_LOGIN_BUTTON_INFO";
const std::string DVC_PNL_PDM_CEH_FUNCTION_LOGIN_PRE_LOADING =
    "DVC_PNL_PDM_CEH_FUNCTION_LOGIN_PRE_LOADING";
const std::string DVC_PNL_PDM_CEH_HIT_POSITION = "DVC_PNL_PDM_CEH_HIT_POSITION";
const std::string DVC_PNL_PDM_CEH_INPUT_METHOD = "DVC_PNL_PDM_CEH_INPUT_METHOD";
const std::string DVC_PNL_PDM_CEH_JOB_INFO = "DVC_PNL_PDM_CEH_JOB_INFO";
const std::string DVC_PNL_PDM_CEH_LAST_DESTINATION = "DVC_PNL_PDM_CEH_LAST_DESTINATION";
const std::string DVC_PNL_PDM_CEH_LOGIN_TYPE = "DVC_PNL_PDM_CEH_LOGIN_TYPE";
const std::string DVC_PNL_PDM_CEH_LOGIN_TYPE_RMT = "DVC_PNL_PDM_CEH_LOGIN_TYPE_RMT";
const std::string DVC_PNL_PDM_CEH_MAINTENANCE_MODE_LOGIN_PERMIT_FLAG =
    "DVC_PNL_PDM_CEH_MAINTENANCE_MODE_LOGIN_PERMIT_FLAG";
const std::string DVC_PNL_PDM_CEH_MENU_SELECTION = "DVC_PNL_PDM_CEH_MENU_SELECTION";
const std::string DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS = "DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS";
const std::string DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS_2 = "DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS_2";
const std::string DVC_PNL_PDM_CEH_ONE_TOUCH_PRESSED = "DVC_PNL_PDM_CEH_ONE_TOUCH_PRESSED";
const std::string DVC_PNL_PDM_CEH_ONHOOK_START_RELEASE = "DVC_PNL_PDM_CEH_ONHOOK_START_RELEASE";
const std::string DVC_PNL_PDM_CEH_OPERATION_SOURCE = "DVC_PNL_PDM_CEH_OPERATION_SOURCE";
const std::string DVC_PNL_PDM_CEH_OPTION_MANAGE = "DVC_PNL_PDM_CEH_OPTION_MANAGE";
const std::string DVC_PNL_PDM_CEH_OPTION_MANAGE_EXP_TIME = "DVC_PNL_PDM_CEH_OPTION_MANAGE_EXP_TIME";
const std::string DVC_PNL_PDM_CEH_OPTION_MODE = "DVC_PNL_PDM_CEH_OPTION_MODE";
const std::string DVC_PNL_PDM_CEH_ORIGINAL_SIZE_MENU_MODE =
    "DVC_PNL_PDM_CEH_ORIGINAL_SIZE_MENU_MODE";
const std::string DVC_PNL_PDM_CEH_PROGRAM_PRESSED = "DVC_PNL_PDM_CEH_PROGRAM_PRESSED";
const std::string DVC_PNL_PDM_CEH_PULL_PRINT_COLOR_STATE = "DVC_PNL_PDM_CEH_PULL_PRINT_COLOR_STATE";
const std::string DVC_PNL_PDM_CEH_PULL_PRINT_DETAIL = "DVC_PNL_PDM_CEH_PULL_PRINT_DETAIL";
const std::string DVC_PNL_PDM_CEH_PULL_PRINT_DOC_NAME = "DVC_PNL_PDM_CEH_PULL_PRINT_DOC_NAME";
const std::string DVC_PNL_PDM_CEH_PULL_PRINT_JOB_NAME = "DVC_PNL_PDM_CEH_PULL_PRINT_JOB_NAME";
const std::string DVC_PNL_PDM_CEH_PULL_PRINT_RUNNING = "DVC_PNL_PDM_CEH_PULL_PRINT_RUNNING";
const std::string DVC_PNL_PDM_CEH_REMOTE_OPERATION_PASSWORD =
    "DVC_PNL_PDM_CEH_REMOTE_OPERATION_PASSWORD";
const std::string DVC_PNL_PDM_CEH_REMOTE_PANEL_DIALOG_STATE_AND_GROUP_FLAG =
    "DVC_PNL_PDM_CEH_REMOTE_PANEL_DIALOG_STATE_AND_GROUP_FLAG";
const std::string DVC_PNL_PDM_CEH_REMOTE_PANEL_STATE_AND_GROUP_FLAG =
    "DVC_PNL_PDM_CEH_REMOTE_PANEL_STATE_AND_GROUP_FLAG";
const std::string DVC_PNL_PDM_CEH_SELECTED_ADDR = "DVC_PNL_PDM_CEH_SELECTED_ADDR";
const std::string DVC_PNL_PDM_CEH_SELECTED_BOX_ID = "DVC_PNL_PDM_CEH_SELECTED_BOX_ID";
const std::string DVC_PNL_PDM_CEH_SELECTED_CASSETTE = "DVC_PNL_PDM_CEH_SELECTED_CASSETTE";
const std::string DVC_PNL_PDM_CEH_SELECTED_DEST = "DVC_PNL_PDM_CEH_SELECTED_DEST";
const std::string DVC_PNL_PDM_CEH_SELECTED_FILE_NUM = "DVC_PNL_PDM_CEH_SELECTED_FILE_NUM";
const std::string DVC_PNL_PDM_CEH_SELECTED_JOB_LIST = "DVC_PNL_PDM_CEH_SELECTED_JOB_LIST";
const std::string DVC_PNL_PDM_CEH_SYMBOL_SELECTED = "DVC_PNL_PDM_CEH_SYMBOL_SELECTED";
const std::string DVC_PNL_PDM_CEH_TRANSACTION_TIMES = "DVC_PNL_PDM_CEH_TRANSACTION_TIMES";
const std::string DVC_PNL_PDM_CEH_WIFI_CUSTOM_SETTING = "DVC_PNL_PDM_CEH_WIFI_CUSTOM_SETTING";
const std::string DVC_PNL_PDM_CEH_WIFI_DIRECT_DEVICE_NAME =
    "DVC_PNL_PDM_CEH_WIFI_DIRECT_DEVICE_NAME";
const std::string DVC_PNL_PDM_CEH_WIFI_DIRECT_KEY_PAGE_ID =
    "DVC_PNL_PDM_CEH_WIFI_DIRECT_KEY_PAGE_ID";
const std::string DVC_PNL_PDM_CEH_WIFI_PIN_CODE = "DVC_PNL_PDM_CEH_WIFI_PIN_CODE";
const std::string DVC_PNL_PDM_CEH_WSD_SCAN_DEST_PC_NAME = "DVC_PNL_PDM_CEH_WSD_SCAN_DEST_PC_NAME";
const std::string DVC_PNL_PDM_COPY_PRESET = "DVC_PNL_PDM_COPY_PRESET";
const std::string DVC_PNL_PDM_COPY_PROHIBITION_WINDOWS = "DVC_PNL_PDM_COPY_PROHIBITION_WINDOWS";
const std::string DVC_PNL_PDM_COUNTER_WINDOW = "DVC_PNL_PDM_COUNTER_WINDOW";
const std::string DVC_PNL_PDM_DESTINATION_BOX = "DVC_PNL_PDM_DESTINATION_BOX";
const std::string DVC_PNL_PDM_DEST_CONFIRMING_STATE = "DVC_PNL_PDM_DEST_CONFIRMING_STATE";
const std::string DVC_PNL_PDM_DEST_DIRECT_INPUT_STATE = "DVC_PNL_PDM_DEST_DIRECT_INPUT_STATE";
const std::string DVC_PNL_PDM_DIALOG_VISIBLE = "DVC_PNL_PDM_DIALOG_VISIBLE";
const std::string DVC_PNL_PDM_DISPLAY_CONFIRM_REQUEST = "DVC_PNL_PDM_DISPLAY_CONFIRM_REQUEST";
const std::string DVC_PNL_PDM_DVC_CEH_ACCOUNT_ID = "DVC_PNL_PDM_DVC_CEH_ACCOUNT_ID";
const std::string DVC_PNL_PDM_DVC_CEH_BINARY = "DVC_PNL_PDM_DVC_CEH_BINARY";
const std::string DVC_PNL_PDM_DVC_CEH_BINARY_BACKUP = "DVC_PNL_PDM_DVC_CEH_BINARY_BACKUP";
const std::string DVC_PNL_PDM_DVC_CEH_BINARY_RMT = "DVC_PNL_PDM_DVC_CEH_BINARY_RMT";
const std::string DVC_PNL_PDM_DVC_CEH_BINARY_TMP_BACKUP = "DVC_PNL_PDM_DVC_CEH_BINARY_TMP_BACKUP";
const std::string DVC_PNL_PDM_DVC_CEH_BOX_INTEGER = "DVC_PNL_PDM_DVC_CEH_BOX_INTEGER";
const std::string DVC_PNL_PDM_DVC_CEH_COPY_INTEGER = "DVC_PNL_PDM_DVC_CEH_COPY_INTEGER";
const std::string DVC_PNL_PDM_DVC_CEH_CUSTOM_BOX_COUNT = "DVC_PNL_PDM_DVC_CEH_CUSTOM_BOX_COUNT";
const std::string DVC_PNL_PDM_DVC_CEH_DOMAIN_INFO = "DVC_PNL_PDM_DVC_CEH_DOMAIN_INFO";
const std::string DVC_PNL_PDM_DVC_CEH_FAX_INTEGER = "DVC_PNL_PDM_DVC_CEH_FAX_INTEGER";
const std::string DVC_PNL_PDM_DVC_CEH_INTEGER = "DVC_PNL_PDM_DVC_CEH_INTEGER";
const std::string DVC_PNL_PDM_DVC_CEH_INTEGER_RMT = "DVC_PNL_PDM_DVC_CEH_INTEGER_RMT";
const std::string DVC_PNL_PDM_DVC_CEH_JOB_ACCOUNTING_EXIT_KEY =
    "DVC_PNL_PDM_DVC_CEH_JOB_ACCOUNTING_EXIT_KEY";
const std::string DVC_PNL_PDM_DVC_CEH_MOVE_TO_CONTENTS = "DVC_PNL_PDM_DVC_CEH_MOVE_TO_CONTENTS";
const std::string DVC_PNL_PDM_DVC_CEH_PRINT_CHANGESET = "DVC_PNL_PDM_DVC_CEH_PRINT_CHANGESET";
const std::string DVC_PNL_PDM_DVC_CEH_PROGRAM_INTEGER = "DVC_PNL_PDM_DVC_CEH_PROGRAM_INTEGER";
const std::string DVC_PNL_PDM_DVC_CEH_SELECTED_DOMAIN = "DVC_PNL_PDM_DVC_CEH_SELECTED_DOMAIN";
const std::string DVC_PNL_PDM_DVC_CEH_SELECTED_DOMAIN_ID = "DVC_PNL_PDM_DVC_CEH_SELECTED_DOMAIN_ID";
const std::string DVC_PNL_PDM_DVC_CEH_SELECTED_DOMAIN_ID_RMT =
    "DVC_PNL_PDM_DVC_CEH_SELECTED_DOMAIN_ID_RMT";
const std::string DVC_PNL_PDM_DVC_CEH_SEND_BASE_SELECTED_INDEX =
    "DVC_PNL_PDM_DVC_CEH_SEND_BASE_SELECTED_INDEX";
const std::string DVC_PNL_PDM_DVC_CEH_SEND_BINARY = "DVC_PNL_PDM_DVC_CEH_SEND_BINARY";
const std::string DVC_PNL_PDM_DVC_CEH_SEND_INTEGER = "DVC_PNL_PDM_DVC_CEH_SEND_INTEGER";
const std::string DVC_PNL_PDM_DVC_CEH_STATUS_INTEGER = "DVC_PNL_PDM_DVC_CEH_STATUS_INTEGER";
const std::string DVC_PNL_PDM_DVC_CEH_STRING = "DVC_PNL_PDM_DVC_CEH_STRING";
const std::string DVC_PNL_PDM_DVC_CEH_SYNBOL_EXIT_KEY = "DVC_PNL_PDM_DVC_CEH_SYNBOL_EXIT_KEY";
const std::string DVC_PNL_PDM_DVC_CEH_SYS_COUNT_BINARY = "DVC_PNL_PDM_DVC_CEH_SYS_COUNT_BINARY";
const std::string DVC_PNL_PDM_DVC_CEH_SYS_COUNT_INTEGER = "DVC_PNL_PDM_DVC_CEH_SYS_COUNT_INTEGER";
const std::string DVC_PNL_PDM_DVC_CEH_SYS_COUNT_STRING = "DVC_PNL_PDM_DVC_CEH_SYS_COUNT_STRING";
const std::string DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO =
    "DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO";
const std::string DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO_RMT =
    "DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO_RMT";
const std::string DVC_PNL_PDM_DVC_CEH_VALUESET = "DVC_PNL_PDM_DVC_CEH_VALUESET";
const std::string DVC_PNL_PDM_ERROR_OCCURRENCE = "DVC_PNL_PDM_ERROR_OCCURRENCE";
const std::string DVC_PNL_PDM_ERROR_STATE = "DVC_PNL_PDM_ERROR_STATE";
const std::string DVC_PNL_PDM_EXT_ADDR_BOOK_FULL_LIST = "DVC_PNL_PDM_EXT_ADDR_BOOK_FULL_LIST";
const std::string DVC_PNL_PDM_EXT_ADDR_BOOK_SERVER_NUM = "DVC_PNL_PDM_EXT_ADDR_BOOK_SERVER_NUM";
const std::string DVC_PNL_PDM_FAX = "DVC_PNL_PDM_FAX";
const std::string DVC_PNL_PDM_FIRST_BOOT_STATE = "DVC_PNL_PDM_FIRST_BOOT_STATE";
const std::string DVC_PNL_PDM_FUNCTION_LOGIN_SETTING = "DVC_PNL_PDM_FUNCTION_LOGIN_SETTING";
const std::string DVC_PNL_PDM_GCP_INFO = "DVC_PNL_PDM_GCP_INFO";
const std::string DVC_PNL_PDM_ICCARD_LOGIN_WINDOW = "DVC_PNL_PDM_ICCARD_LOGIN_WINDOW";
const std::string DVC_PNL_PDM_IC_CARD_SYSTEM_STATUS_UPDATE =
    "DVC_PNL_PDM_IC_CARD_SYSTEM_STATUS_UPDATE";
const std::string DVC_PNL_PDM_JOB_NUM = "DVC_PNL_PDM_JOB_NUM";
const std::string DVC_PNL_PDM_JOB_SETTING = "DVC_PNL_PDM_JOB_SETTING";
const std::string DVC_PNL_PDM_KEY_FAIL_BUZZER_FLAG = "DVC_PNL_PDM_KEY_FAIL_BUZZER_FLAG";
const std::string DVC_PNL_PDM_LOGIN_EVENT_KEY_ID = "DVC_PNL_PDM_LOGIN_EVENT_KEY_ID";
const std::string DVC_PNL_PDM_LOGIN_STATUS_ACQUIRE = "DVC_PNL_PDM_LOGIN_STATUS_ACQUIRE";
const std::string DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY = "DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY";
const std::string DVC_PNL_PDM_LONG_PRESS_KEY = "DVC_PNL_PDM_LONG_PRESS_KEY";
const std::string DVC_PNL_PDM_LONG_PRESS_KEY_TIMES = "DVC_PNL_PDM_LONG_PRESS_KEY_TIMES";
const std::string DVC_PNL_PDM_MAINTENANCE_MODE_START = "DVC_PNL_PDM_MAINTENANCE_MODE_START";
const std::string DVC_PNL_PDM_MAINTENANCE_START = "DVC_PNL_PDM_MAINTENANCE_START";
const std::string DVC_PNL_PDM_MODEL = "DVC_PNL_PDM_MODEL";
const std::string DVC_PNL_PDM_MODEL_OPTION = "DVC_PNL_PDM_MODEL_OPTION";
const std::string DVC_PNL_PDM_NWM_STATUS_ALL = "DVC_PNL_PDM_NWM_STATUS_ALL";
const std::string DVC_PNL_PDM_NWM_STATUS_WIRED = "DVC_PNL_PDM_NWM_STATUS_WIRED";
const std::string DVC_PNL_PDM_ONHOOK_STANDBY_STATE = "DVC_PNL_PDM_ONHOOK_STANDBY_STATE";
const std::string DVC_PNL_PDM_OPEN_LOGIN_PAGE = "DVC_PNL_PDM_OPEN_LOGIN_PAGE";
const std::string DVC_PNL_PDM_ORIGINAL_STATUS_UPDATE = "DVC_PNL_PDM_ORIGINAL_STATUS_UPDATE";
const std::string DVC_PNL_PDM_PRESET_APPOINTMENT_METHOD = "DVC_PNL_PDM_PRESET_APPOINTMENT_METHOD";
const std::string DVC_PNL_PDM_PRINT_JOB_STATUS_PG_STATE = "DVC_PNL_PDM_PRINT_JOB_STATUS_PG_STATE";
const std::string DVC_PNL_PDM_PROPERTY_SCREEN_STATE = "DVC_PNL_PDM_PROPERTY_SCREEN_STATE";
const std::string DVC_PNL_PDM_PULLPRINT_FILE_DELETED_AFTER =
    "DVC_PNL_PDM_PULLPRINT_FILE_DELETED_AFTER";
const std::string DVC_PNL_PDM_PULL_PRINT_DOCUMENT_NUM = "DVC_PNL_PDM_PULL_PRINT_DOCUMENT_NUM";
const std::string DVC_PNL_PDM_PULL_PRINT_SERVICE_ID = "DVC_PNL_PDM_PULL_PRINT_SERVICE_ID";
const std::string DVC_PNL_PDM_QRVX_B7_STATE = "DVC_PNL_PDM_QRVX_B7_STATE";
const std::string DVC_PNL_PDM_RELEASED_FROM_PROHIBITION = "DVC_PNL_PDM_RELEASED_FROM_PROHIBITION";
const std::string DVC_PNL_PDM_REMOTE_PANEL_CONFIRMATION = "DVC_PNL_PDM_REMOTE_PANEL_CONFIRMATION";
const std::string DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_DISCONNECT_PROMPT =
    "DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_DISCONNECT_PROMPT";
const std::string DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_DISPLAY =
    "DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_DISPLAY";
const std::string DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_EXIST =
    "DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_EXIST";
const std::string DVC_PNL_PDM_REMOTE_PANEL_PASSWORD_OPE_SRC =
    "DVC_PNL_PDM_REMOTE_PANEL_PASSWORD_OPE_SRC";
const std::string DVC_PNL_PDM_REMOTE_PANEL_PROHIBITION_STATE =
    "DVC_PNL_PDM_REMOTE_PANEL_PROHIBITION_STATE";
const std::string DVC_PNL_PDM_REMOTE_PANEL_RESOURCE_TARGET =
    "DVC_PNL_PDM_REMOTE_PANEL_RESOURCE_TARGET";
const std::string DVC_PNL_PDM_REMOTE_PANEL_STATUS = "DVC_PNL_PDM_REMOTE_PANEL_STATUS";
const std::string DVC_PNL_PDM_SANITIZATION_START = "DVC_PNL_PDM_SANITIZATION_START";
const std::string DVC_PNL_PDM_SCAN_CONTINUE = "DVC_PNL_PDM_SCAN_CONTINUE";
const std::string DVC_PNL_PDM_SCAN_START = "DVC_PNL_PDM_SCAN_START";
const std::string DVC_PNL_PDM_SCAN_WINDOW_STATE = "DVC_PNL_PDM_SCAN_WINDOW_STATE";
const std::string DVC_PNL_PDM_SECURITY_KIT_STATUS_UPDATE = "DVC_PNL_PDM_SECURITY_KIT_STATUS_UPDATE";
const std::string DVC_PNL_PDM_SHIFTLOCK = "DVC_PNL_PDM_SHIFTLOCK";
const std::string DVC_PNL_PDM_SIMPLE_FOLLOW_ME_PRINT_STATE =
    "DVC_PNL_PDM_SIMPLE_FOLLOW_ME_PRINT_STATE";
const std::string DVC_PNL_PDM_START_BOX_ID = "DVC_PNL_PDM_START_BOX_ID";
const std::string DVC_PNL_PDM_START_BOX_KIND = "DVC_PNL_PDM_START_BOX_KIND";
const std::string DVC_PNL_PDM_START_LIST_STATUS = "DVC_PNL_PDM_START_LIST_STATUS";
const std::string DVC_PNL_PDM_START_OVERWRITE_PERMIT_FLAG =
    "DVC_PNL_PDM_START_OVERWRITE_PERMIT_FLAG";
const std::string DVC_PNL_PDM_START_PULLPRINT_LIST_STATUS =
    "DVC_PNL_PDM_START_PULLPRINT_LIST_STATUS";
const std::string DVC_PNL_PDM_STATUS_PAGE_STATE = "DVC_PNL_PDM_STATUS_PAGE_STATE";
const std::string DVC_PNL_PDM_SYSTEM_MENU_COUNTER_WINDOW = "DVC_PNL_PDM_SYSTEM_MENU_COUNTER_WINDOW";
const std::string DVC_PNL_PDM_TEST_PRINT_END_CMD_ID = "DVC_PNL_PDM_TEST_PRINT_END_CMD_ID";
const std::string DVC_PNL_PDM_TEST_PRINT_END_DATA = "DVC_PNL_PDM_TEST_PRINT_END_DATA";
const std::string DVC_PNL_PDM_TEST_PRINT_PG_CREATE_POSITION =
    "DVC_PNL_PDM_TEST_PRINT_PG_CREATE_POSITION";
const std::string DVC_PNL_PDM_TEST_PRINT_PG_PATTERN = "DVC_PNL_PDM_TEST_PRINT_PG_PATTERN";
const std::string DVC_PNL_PDM_USB_INFO_DISPLAY_FLAG = "DVC_PNL_PDM_USB_INFO_DISPLAY_FLAG";
const std::string DVC_PNL_PDM_USB_KEYBOARD_TYPE = "DVC_PNL_PDM_USB_KEYBOARD_TYPE";
const std::string DVC_PNL_PDM_WIFI_DIRECT_DEVICE_NAME = "DVC_PNL_PDM_WIFI_DIRECT_DEVICE_NAME";
const std::string DVC_PNL_PDM_WSD_DISTINATION_STATE = "DVC_PNL_PDM_WSD_DISTINATION_STATE";
const std::string DVC_PNL_PDM_WSD_SCAN_MODE = "DVC_PNL_PDM_WSD_SCAN_MODE";

namespace host {

const std::vector<dm_key_info>& dm_keys() {
  using S = dm_scope;
  using K = dm_kind;
  // Built on first use, so other static initialisers may call this safely; sorted by name, so a
  // lookup is a binary search.
  static const std::vector<dm_key_info> table = [] {
    std::vector<dm_key_info> t = {
        {"PAGE_SCOPE_DATA_LABEL", &PAGE_SCOPE_DATA_LABEL, S::page, S::page, K::integer},
        {"DVC_PNL_PDM_ACCOUNT_ID", &DVC_PNL_PDM_ACCOUNT_ID, S::application, S::application, K::any},
        {"DVC_PNL_PDM_ACTIVATE_POWER_SWITCH_WINDOW_STATE",
         &DVC_PNL_PDM_ACTIVATE_POWER_SWITCH_WINDOW_STATE, S::application, S::application,
         K::integer},
        {"DVC_PNL_PDM_ACT_FLAG", &DVC_PNL_PDM_ACT_FLAG, S::application, S::application, K::integer},
        {"DVC_PNL_PDM_ADDRESS_GROUP", &DVC_PNL_PDM_ADDRESS_GROUP, S::function, S::function,
         K::binary},
        {"DVC_PNL_PDM_ADDRESS_PERSONAL", &DVC_PNL_PDM_ADDRESS_PERSONAL, S::function, S::function,
         K::binary},
        {"DVC_PNL_PDM_ADJUSTMENT_MODE", &DVC_PNL_PDM_ADJUSTMENT_MODE, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_AS_PAUSE_PRINT_STATUS", &DVC_PNL_PDM_AS_PAUSE_PRINT_STATUS, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_AUTHENTICATION_ID", &DVC_PNL_PDM_AUTHENTICATION_ID, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_AUTHENTICATION_MODE", &DVC_PNL_PDM_AUTHENTICATION_MODE, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_BOX_BASE_SELECTED_INDEX", &DVC_PNL_PDM_BOX_BASE_SELECTED_INDEX, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_BOX_PATH", &DVC_PNL_PDM_BOX_PATH, S::function, S::function, K::string},
        {"DVC_PNL_PDM_BOX_PRINT_JOB_ID", &DVC_PNL_PDM_BOX_PRINT_JOB_ID, S::page, S::page,
         K::integer},
        {"DVC_PNL_PDM_CEH_ACCESS_POINT_INFO", &DVC_PNL_PDM_CEH_ACCESS_POINT_INFO, S::function,
         S::function, K::binary},
        {"DVC_PNL_PDM_CEH_ACCOUNT_INFO", &DVC_PNL_PDM_CEH_ACCOUNT_INFO, S::function, S::function,
         K::binary},
        {"DVC_PNL_PDM_CEH_ADDRESS_BOOK_LIST_EXISTENCE",
         &DVC_PNL_PDM_CEH_ADDRESS_BOOK_LIST_EXISTENCE, S::page, S::page, K::integer},
        {"DVC_PNL_PDM_CEH_ADDR_SEARCH_STRING", &DVC_PNL_PDM_CEH_ADDR_SEARCH_STRING, S::function,
         S::function, K::string},
        {"DVC_PNL_PDM_CEH_APPLICATION_COUNT", &DVC_PNL_PDM_CEH_APPLICATION_COUNT, S::page, S::page,
         K::integer},
        {"DVC_PNL_PDM_CEH_APPLICATION_LIST", &DVC_PNL_PDM_CEH_APPLICATION_LIST, S::page, S::page,
         K::binary},
        {"DVC_PNL_PDM_CEH_APPLICATION_SELECT", &DVC_PNL_PDM_CEH_APPLICATION_SELECT, S::page,
         S::page, K::integer},
        {"DVC_PNL_PDM_CEH_AUTHENTICATION_ID_RMT", &DVC_PNL_PDM_CEH_AUTHENTICATION_ID_RMT,
         S::application, S::application, K::any},
        {"DVC_PNL_PDM_CEH_AUTHENTICATION_INFO", &DVC_PNL_PDM_CEH_AUTHENTICATION_INFO, S::function,
         S::function, K::binary},
        {"DVC_PNL_PDM_CEH_AUTHENTICATION_INFO_RMT", &DVC_PNL_PDM_CEH_AUTHENTICATION_INFO_RMT,
         S::function, S::function, K::binary},
        {"DVC_PNL_PDM_CEH_AVAILABLE_NETWORK", &DVC_PNL_PDM_CEH_AVAILABLE_NETWORK, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_CEH_BOX_INFO", &DVC_PNL_PDM_CEH_BOX_INFO, S::function, S::function,
         K::binary},
        {"DVC_PNL_PDM_CEH_CASH_EXT_ADDR_BOOK", &DVC_PNL_PDM_CEH_CASH_EXT_ADDR_BOOK, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_CEH_CHAIN", &DVC_PNL_PDM_CEH_CHAIN, S::function, S::function, K::string},
        {"DVC_PNL_PDM_CEH_CID_03_02_06_N2_ON_CLOSE_FLG",
         &DVC_PNL_PDM_CEH_CID_03_02_06_N2_ON_CLOSE_FLG, S::function, S::function, K::integer},
        {"DVC_PNL_PDM_CEH_COPY_COLOR_MODE", &DVC_PNL_PDM_CEH_COPY_COLOR_MODE, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_CEH_CUSTOM_BOX_LIST", &DVC_PNL_PDM_CEH_CUSTOM_BOX_LIST, S::function,
         S::function, K::valueset},
        {"DVC_PNL_PDM_CEH_DATA_SANITIZATION_DAY", &DVC_PNL_PDM_CEH_DATA_SANITIZATION_DAY, S::page,
         S::page, K::integer},
        {"DVC_PNL_PDM_CEH_DATA_SANITIZATION_HOUR", &DVC_PNL_PDM_CEH_DATA_SANITIZATION_HOUR, S::page,
         S::page, K::integer},
        {"DVC_PNL_PDM_CEH_DATA_SANITIZATION_MONTH", &DVC_PNL_PDM_CEH_DATA_SANITIZATION_MONTH,
         S::page, S::page, K::integer},
        {"DVC_PNL_PDM_CEH_DATA_SANITIZATION_YEAR", &DVC_PNL_PDM_CEH_DATA_SANITIZATION_YEAR, S::page,
         S::page, K::integer},
        {"DVC_PNL_PDM_CEH_DISP_ADDR_BOOK_CID", &DVC_PNL_PDM_CEH_DISP_ADDR_BOOK_CID, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_CEH_DISP_ADDR_BOOK_MENU_CID", &DVC_PNL_PDM_CEH_DISP_ADDR_BOOK_MENU_CID,
         S::function, S::function, K::integer},
        {"DVC_PNL_PDM_CEH_EDITBOX_CHARACTER_TYPE", &DVC_PNL_PDM_CEH_EDITBOX_CHARACTER_TYPE,
         S::function, S::function, K::integer},
        {"DVC_PNL_PDM_CEH_FAX_RESULT", &DVC_PNL_PDM_CEH_FAX_RESULT, S::function, S::function,
         K::integer},
        {"DVC_PNL_PDM_CEH_FUNCTION_LOGIN_BUTTON_INFO", &DVC_PNL_PDM_CEH_FUNCTION_LOGIN_BUTTON_INFO,
         S::page, S::page, K::integer},
        {"DVC_PNL_PDM_CEH_FUNCTION_LOGIN_PRE_LOADING", &DVC_PNL_PDM_CEH_FUNCTION_LOGIN_PRE_LOADING,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_CEH_HIT_POSITION", &DVC_PNL_PDM_CEH_HIT_POSITION, S::function, S::function,
         K::integer},
        {"DVC_PNL_PDM_CEH_INPUT_METHOD", &DVC_PNL_PDM_CEH_INPUT_METHOD, S::page, S::function,
         K::integer},
        {"DVC_PNL_PDM_CEH_JOB_INFO", &DVC_PNL_PDM_CEH_JOB_INFO, S::function, S::function,
         K::binary},
        {"DVC_PNL_PDM_CEH_LAST_DESTINATION", &DVC_PNL_PDM_CEH_LAST_DESTINATION, S::function,
         S::function, K::binary},
        {"DVC_PNL_PDM_CEH_LOGIN_TYPE", &DVC_PNL_PDM_CEH_LOGIN_TYPE, S::application, S::application,
         K::integer},
        {"DVC_PNL_PDM_CEH_LOGIN_TYPE_RMT", &DVC_PNL_PDM_CEH_LOGIN_TYPE_RMT, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_CEH_MAINTENANCE_MODE_LOGIN_PERMIT_FLAG",
         &DVC_PNL_PDM_CEH_MAINTENANCE_MODE_LOGIN_PERMIT_FLAG, S::application, S::application,
         K::integer},
        {"DVC_PNL_PDM_CEH_MENU_SELECTION", &DVC_PNL_PDM_CEH_MENU_SELECTION, S::function, S::page,
         K::integer},
        {"DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS", &DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS, S::function,
         S::page, K::integer},
        {"DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS_2", &DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS_2, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_CEH_ONE_TOUCH_PRESSED", &DVC_PNL_PDM_CEH_ONE_TOUCH_PRESSED, S::function,
         S::function, K::binary},
        {"DVC_PNL_PDM_CEH_ONHOOK_START_RELEASE", &DVC_PNL_PDM_CEH_ONHOOK_START_RELEASE, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_CEH_OPERATION_SOURCE", &DVC_PNL_PDM_CEH_OPERATION_SOURCE, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_CEH_OPTION_MANAGE", &DVC_PNL_PDM_CEH_OPTION_MANAGE, S::function, S::function,
         K::integer},
        {"DVC_PNL_PDM_CEH_OPTION_MANAGE_EXP_TIME", &DVC_PNL_PDM_CEH_OPTION_MANAGE_EXP_TIME,
         S::function, S::function, K::integer},
        {"DVC_PNL_PDM_CEH_OPTION_MODE", &DVC_PNL_PDM_CEH_OPTION_MODE, S::function, S::function,
         K::integer},
        {"DVC_PNL_PDM_CEH_ORIGINAL_SIZE_MENU_MODE", &DVC_PNL_PDM_CEH_ORIGINAL_SIZE_MENU_MODE,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_CEH_PROGRAM_PRESSED", &DVC_PNL_PDM_CEH_PROGRAM_PRESSED, S::function,
         S::function, K::binary},
        {"DVC_PNL_PDM_CEH_PULL_PRINT_COLOR_STATE", &DVC_PNL_PDM_CEH_PULL_PRINT_COLOR_STATE, S::page,
         S::page, K::integer},
        {"DVC_PNL_PDM_CEH_PULL_PRINT_DETAIL", &DVC_PNL_PDM_CEH_PULL_PRINT_DETAIL, S::function,
         S::function, K::valueset},
        {"DVC_PNL_PDM_CEH_PULL_PRINT_DOC_NAME", &DVC_PNL_PDM_CEH_PULL_PRINT_DOC_NAME, S::page,
         S::page, K::string},
        {"DVC_PNL_PDM_CEH_PULL_PRINT_JOB_NAME", &DVC_PNL_PDM_CEH_PULL_PRINT_JOB_NAME, S::page,
         S::page, K::string},
        {"DVC_PNL_PDM_CEH_PULL_PRINT_RUNNING", &DVC_PNL_PDM_CEH_PULL_PRINT_RUNNING, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_CEH_REMOTE_OPERATION_PASSWORD", &DVC_PNL_PDM_CEH_REMOTE_OPERATION_PASSWORD,
         S::function, S::function, K::string},
        {"DVC_PNL_PDM_CEH_REMOTE_PANEL_DIALOG_STATE_AND_GROUP_FLAG",
         &DVC_PNL_PDM_CEH_REMOTE_PANEL_DIALOG_STATE_AND_GROUP_FLAG, S::application, S::application,
         K::integer},
        {"DVC_PNL_PDM_CEH_REMOTE_PANEL_STATE_AND_GROUP_FLAG",
         &DVC_PNL_PDM_CEH_REMOTE_PANEL_STATE_AND_GROUP_FLAG, S::application, S::application,
         K::integer},
        {"DVC_PNL_PDM_CEH_SELECTED_ADDR", &DVC_PNL_PDM_CEH_SELECTED_ADDR, S::function, S::function,
         K::binary},
        {"DVC_PNL_PDM_CEH_SELECTED_BOX_ID", &DVC_PNL_PDM_CEH_SELECTED_BOX_ID, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_CEH_SELECTED_CASSETTE", &DVC_PNL_PDM_CEH_SELECTED_CASSETTE, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_CEH_SELECTED_DEST", &DVC_PNL_PDM_CEH_SELECTED_DEST, S::function, S::function,
         K::binary},
        {"DVC_PNL_PDM_CEH_SELECTED_FILE_NUM", &DVC_PNL_PDM_CEH_SELECTED_FILE_NUM, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_CEH_SELECTED_JOB_LIST", &DVC_PNL_PDM_CEH_SELECTED_JOB_LIST, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_CEH_SYMBOL_SELECTED", &DVC_PNL_PDM_CEH_SYMBOL_SELECTED, S::function,
         S::function, K::string},
        {"DVC_PNL_PDM_CEH_TRANSACTION_TIMES", &DVC_PNL_PDM_CEH_TRANSACTION_TIMES, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_CEH_WIFI_CUSTOM_SETTING", &DVC_PNL_PDM_CEH_WIFI_CUSTOM_SETTING, S::function,
         S::function, K::binary},
        {"DVC_PNL_PDM_CEH_WIFI_DIRECT_DEVICE_NAME", &DVC_PNL_PDM_CEH_WIFI_DIRECT_DEVICE_NAME,
         S::function, S::function, K::string},
        {"DVC_PNL_PDM_CEH_WIFI_DIRECT_KEY_PAGE_ID", &DVC_PNL_PDM_CEH_WIFI_DIRECT_KEY_PAGE_ID,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_CEH_WIFI_PIN_CODE", &DVC_PNL_PDM_CEH_WIFI_PIN_CODE, S::function, S::function,
         K::string},
        {"DVC_PNL_PDM_CEH_WSD_SCAN_DEST_PC_NAME", &DVC_PNL_PDM_CEH_WSD_SCAN_DEST_PC_NAME,
         S::application, S::application, K::string},
        {"DVC_PNL_PDM_COPY_PRESET", &DVC_PNL_PDM_COPY_PRESET, S::function, S::function, K::integer},
        {"DVC_PNL_PDM_COPY_PROHIBITION_WINDOWS", &DVC_PNL_PDM_COPY_PROHIBITION_WINDOWS, S::function,
         S::function, K::binary},
        {"DVC_PNL_PDM_COUNTER_WINDOW", &DVC_PNL_PDM_COUNTER_WINDOW, S::application, S::application,
         K::integer},
        {"DVC_PNL_PDM_DESTINATION_BOX", &DVC_PNL_PDM_DESTINATION_BOX, S::function, S::function,
         K::binary},
        {"DVC_PNL_PDM_DEST_CONFIRMING_STATE", &DVC_PNL_PDM_DEST_CONFIRMING_STATE, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_DEST_DIRECT_INPUT_STATE", &DVC_PNL_PDM_DEST_DIRECT_INPUT_STATE, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_DIALOG_VISIBLE", &DVC_PNL_PDM_DIALOG_VISIBLE, S::function, S::function,
         K::integer},
        {"DVC_PNL_PDM_DISPLAY_CONFIRM_REQUEST", &DVC_PNL_PDM_DISPLAY_CONFIRM_REQUEST,
         S::application, S::application, K::valueset},
        {"DVC_PNL_PDM_DVC_CEH_ACCOUNT_ID", &DVC_PNL_PDM_DVC_CEH_ACCOUNT_ID, S::application,
         S::application, K::string},
        {"DVC_PNL_PDM_DVC_CEH_BINARY", &DVC_PNL_PDM_DVC_CEH_BINARY, S::function, S::page,
         K::binary},
        {"DVC_PNL_PDM_DVC_CEH_BINARY_BACKUP", &DVC_PNL_PDM_DVC_CEH_BINARY_BACKUP, S::function,
         S::page, K::binary},
        {"DVC_PNL_PDM_DVC_CEH_BINARY_RMT", &DVC_PNL_PDM_DVC_CEH_BINARY_RMT, S::page, S::page,
         K::valueset},
        {"DVC_PNL_PDM_DVC_CEH_BINARY_TMP_BACKUP", &DVC_PNL_PDM_DVC_CEH_BINARY_TMP_BACKUP,
         S::function, S::page, K::binary},
        {"DVC_PNL_PDM_DVC_CEH_BOX_INTEGER", &DVC_PNL_PDM_DVC_CEH_BOX_INTEGER, S::function, S::page,
         K::integer},
        {"DVC_PNL_PDM_DVC_CEH_COPY_INTEGER", &DVC_PNL_PDM_DVC_CEH_COPY_INTEGER, S::page, S::page,
         K::integer},
        {"DVC_PNL_PDM_DVC_CEH_CUSTOM_BOX_COUNT", &DVC_PNL_PDM_DVC_CEH_CUSTOM_BOX_COUNT, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_DVC_CEH_DOMAIN_INFO", &DVC_PNL_PDM_DVC_CEH_DOMAIN_INFO, S::function,
         S::function, K::binary},
        {"DVC_PNL_PDM_DVC_CEH_FAX_INTEGER", &DVC_PNL_PDM_DVC_CEH_FAX_INTEGER, S::page, S::page,
         K::integer},
        {"DVC_PNL_PDM_DVC_CEH_INTEGER", &DVC_PNL_PDM_DVC_CEH_INTEGER, S::function, S::page,
         K::integer},
        {"DVC_PNL_PDM_DVC_CEH_INTEGER_RMT", &DVC_PNL_PDM_DVC_CEH_INTEGER_RMT, S::function, S::page,
         K::integer},
        {"DVC_PNL_PDM_DVC_CEH_JOB_ACCOUNTING_EXIT_KEY",
         &DVC_PNL_PDM_DVC_CEH_JOB_ACCOUNTING_EXIT_KEY, S::function, S::function, K::integer},
        {"DVC_PNL_PDM_DVC_CEH_MOVE_TO_CONTENTS", &DVC_PNL_PDM_DVC_CEH_MOVE_TO_CONTENTS, S::function,
         S::page, K::integer},
        {"DVC_PNL_PDM_DVC_CEH_PRINT_CHANGESET", &DVC_PNL_PDM_DVC_CEH_PRINT_CHANGESET, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_DVC_CEH_PROGRAM_INTEGER", &DVC_PNL_PDM_DVC_CEH_PROGRAM_INTEGER, S::page,
         S::page, K::integer},
        {"DVC_PNL_PDM_DVC_CEH_SELECTED_DOMAIN", &DVC_PNL_PDM_DVC_CEH_SELECTED_DOMAIN, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_DVC_CEH_SELECTED_DOMAIN_ID", &DVC_PNL_PDM_DVC_CEH_SELECTED_DOMAIN_ID,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_DVC_CEH_SELECTED_DOMAIN_ID_RMT", &DVC_PNL_PDM_DVC_CEH_SELECTED_DOMAIN_ID_RMT,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_DVC_CEH_SEND_BASE_SELECTED_INDEX",
         &DVC_PNL_PDM_DVC_CEH_SEND_BASE_SELECTED_INDEX, S::function, S::function, K::integer},
        {"DVC_PNL_PDM_DVC_CEH_SEND_BINARY", &DVC_PNL_PDM_DVC_CEH_SEND_BINARY, S::function, S::page,
         K::binary},
        {"DVC_PNL_PDM_DVC_CEH_SEND_INTEGER", &DVC_PNL_PDM_DVC_CEH_SEND_INTEGER, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_DVC_CEH_STATUS_INTEGER", &DVC_PNL_PDM_DVC_CEH_STATUS_INTEGER, S::page,
         S::page, K::integer},
        {"DVC_PNL_PDM_DVC_CEH_STRING", &DVC_PNL_PDM_DVC_CEH_STRING, S::function, S::page,
         K::string},
        {"DVC_PNL_PDM_DVC_CEH_SYNBOL_EXIT_KEY", &DVC_PNL_PDM_DVC_CEH_SYNBOL_EXIT_KEY, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_DVC_CEH_SYS_COUNT_BINARY", &DVC_PNL_PDM_DVC_CEH_SYS_COUNT_BINARY, S::function,
         S::function, K::binary},
        {"DVC_PNL_PDM_DVC_CEH_SYS_COUNT_INTEGER", &DVC_PNL_PDM_DVC_CEH_SYS_COUNT_INTEGER,
         S::function, S::function, K::integer},
        {"DVC_PNL_PDM_DVC_CEH_SYS_COUNT_STRING", &DVC_PNL_PDM_DVC_CEH_SYS_COUNT_STRING, S::function,
         S::function, K::string},
        {"DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO", &DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO,
         S::application, S::application, K::binary},
        {"DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO_RMT",
         &DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO_RMT, S::application, S::application, K::binary},
        {"DVC_PNL_PDM_DVC_CEH_VALUESET", &DVC_PNL_PDM_DVC_CEH_VALUESET, S::function, S::page,
         K::valueset},
        {"DVC_PNL_PDM_ERROR_OCCURRENCE", &DVC_PNL_PDM_ERROR_OCCURRENCE, S::function, S::function,
         K::valueset},
        {"DVC_PNL_PDM_ERROR_STATE", &DVC_PNL_PDM_ERROR_STATE, S::function, S::function, K::integer},
        {"DVC_PNL_PDM_EXT_ADDR_BOOK_FULL_LIST", &DVC_PNL_PDM_EXT_ADDR_BOOK_FULL_LIST, S::function,
         S::function, K::valueset},
        {"DVC_PNL_PDM_EXT_ADDR_BOOK_SERVER_NUM", &DVC_PNL_PDM_EXT_ADDR_BOOK_SERVER_NUM, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_FAX", &DVC_PNL_PDM_FAX, S::application, S::application, K::integer},
        {"DVC_PNL_PDM_FIRST_BOOT_STATE", &DVC_PNL_PDM_FIRST_BOOT_STATE, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_FUNCTION_LOGIN_SETTING", &DVC_PNL_PDM_FUNCTION_LOGIN_SETTING, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_GCP_INFO", &DVC_PNL_PDM_GCP_INFO, S::application, S::application,
         K::valueset},
        {"DVC_PNL_PDM_ICCARD_LOGIN_WINDOW", &DVC_PNL_PDM_ICCARD_LOGIN_WINDOW, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_IC_CARD_SYSTEM_STATUS_UPDATE", &DVC_PNL_PDM_IC_CARD_SYSTEM_STATUS_UPDATE,
         S::application, S::application, K::valueset},
        {"DVC_PNL_PDM_JOB_NUM", &DVC_PNL_PDM_JOB_NUM, S::function, S::function, K::integer},
        {"DVC_PNL_PDM_JOB_SETTING", &DVC_PNL_PDM_JOB_SETTING, S::function, S::function, K::integer},
        {"DVC_PNL_PDM_KEY_FAIL_BUZZER_FLAG", &DVC_PNL_PDM_KEY_FAIL_BUZZER_FLAG, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_LOGIN_EVENT_KEY_ID", &DVC_PNL_PDM_LOGIN_EVENT_KEY_ID, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_LOGIN_STATUS_ACQUIRE", &DVC_PNL_PDM_LOGIN_STATUS_ACQUIRE, S::application,
         S::application, K::valueset},
        {"DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY", &DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_LONG_PRESS_KEY", &DVC_PNL_PDM_LONG_PRESS_KEY, S::function, S::function,
         K::integer},
        {"DVC_PNL_PDM_LONG_PRESS_KEY_TIMES", &DVC_PNL_PDM_LONG_PRESS_KEY_TIMES, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_MAINTENANCE_MODE_START", &DVC_PNL_PDM_MAINTENANCE_MODE_START, S::page,
         S::page, K::valueset},
        {"DVC_PNL_PDM_MAINTENANCE_START", &DVC_PNL_PDM_MAINTENANCE_START, S::page, S::page,
         K::valueset},
        {"DVC_PNL_PDM_MODEL", &DVC_PNL_PDM_MODEL, S::application, S::application, K::any},
        {"DVC_PNL_PDM_MODEL_OPTION", &DVC_PNL_PDM_MODEL_OPTION, S::application, S::application,
         K::integer},
        {"DVC_PNL_PDM_NWM_STATUS_ALL", &DVC_PNL_PDM_NWM_STATUS_ALL, S::application, S::application,
         K::integer},
        {"DVC_PNL_PDM_NWM_STATUS_WIRED", &DVC_PNL_PDM_NWM_STATUS_WIRED, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_ONHOOK_STANDBY_STATE", &DVC_PNL_PDM_ONHOOK_STANDBY_STATE, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_OPEN_LOGIN_PAGE", &DVC_PNL_PDM_OPEN_LOGIN_PAGE, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_ORIGINAL_STATUS_UPDATE", &DVC_PNL_PDM_ORIGINAL_STATUS_UPDATE, S::application,
         S::application, K::valueset},
        {"DVC_PNL_PDM_PRESET_APPOINTMENT_METHOD", &DVC_PNL_PDM_PRESET_APPOINTMENT_METHOD,
         S::function, S::function, K::integer},
        {"DVC_PNL_PDM_PRINT_JOB_STATUS_PG_STATE", &DVC_PNL_PDM_PRINT_JOB_STATUS_PG_STATE,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_PROPERTY_SCREEN_STATE", &DVC_PNL_PDM_PROPERTY_SCREEN_STATE, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_PULLPRINT_FILE_DELETED_AFTER", &DVC_PNL_PDM_PULLPRINT_FILE_DELETED_AFTER,
         S::cross_function, S::cross_function, K::integer},
        {"DVC_PNL_PDM_PULL_PRINT_DOCUMENT_NUM", &DVC_PNL_PDM_PULL_PRINT_DOCUMENT_NUM,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_PULL_PRINT_SERVICE_ID", &DVC_PNL_PDM_PULL_PRINT_SERVICE_ID, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_QRVX_B7_STATE", &DVC_PNL_PDM_QRVX_B7_STATE, S::application, S::application,
         K::integer},
        {"DVC_PNL_PDM_RELEASED_FROM_PROHIBITION", &DVC_PNL_PDM_RELEASED_FROM_PROHIBITION,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_REMOTE_PANEL_CONFIRMATION", &DVC_PNL_PDM_REMOTE_PANEL_CONFIRMATION,
         S::application, S::application, K::string},
        {"DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_DISCONNECT_PROMPT",
         &DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_DISCONNECT_PROMPT, S::application, S::application,
         K::integer},
        {"DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_DISPLAY", &DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_DISPLAY,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_EXIST", &DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_EXIST,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_REMOTE_PANEL_PASSWORD_OPE_SRC", &DVC_PNL_PDM_REMOTE_PANEL_PASSWORD_OPE_SRC,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_REMOTE_PANEL_PROHIBITION_STATE", &DVC_PNL_PDM_REMOTE_PANEL_PROHIBITION_STATE,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_REMOTE_PANEL_RESOURCE_TARGET", &DVC_PNL_PDM_REMOTE_PANEL_RESOURCE_TARGET,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_REMOTE_PANEL_STATUS", &DVC_PNL_PDM_REMOTE_PANEL_STATUS, S::application,
         S::application, K::valueset},
        {"DVC_PNL_PDM_SANITIZATION_START", &DVC_PNL_PDM_SANITIZATION_START, S::application,
         S::application, K::valueset},
        {"DVC_PNL_PDM_SCAN_CONTINUE", &DVC_PNL_PDM_SCAN_CONTINUE, S::page, S::page, K::valueset},
        {"DVC_PNL_PDM_SCAN_START", &DVC_PNL_PDM_SCAN_START, S::page, S::page, K::valueset},
        {"DVC_PNL_PDM_SCAN_WINDOW_STATE", &DVC_PNL_PDM_SCAN_WINDOW_STATE, S::function, S::function,
         K::integer},
        {"DVC_PNL_PDM_SECURITY_KIT_STATUS_UPDATE", &DVC_PNL_PDM_SECURITY_KIT_STATUS_UPDATE,
         S::application, S::application, K::any},
        {"DVC_PNL_PDM_SHIFTLOCK", &DVC_PNL_PDM_SHIFTLOCK, S::application, S::application,
         K::integer},
        {"DVC_PNL_PDM_SIMPLE_FOLLOW_ME_PRINT_STATE", &DVC_PNL_PDM_SIMPLE_FOLLOW_ME_PRINT_STATE,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_START_BOX_ID", &DVC_PNL_PDM_START_BOX_ID, S::function, S::function,
         K::integer},
        {"DVC_PNL_PDM_START_BOX_KIND", &DVC_PNL_PDM_START_BOX_KIND, S::function, S::function,
         K::integer},
        {"DVC_PNL_PDM_START_LIST_STATUS", &DVC_PNL_PDM_START_LIST_STATUS, S::function, S::function,
         K::valueset},
        {"DVC_PNL_PDM_START_OVERWRITE_PERMIT_FLAG", &DVC_PNL_PDM_START_OVERWRITE_PERMIT_FLAG,
         S::function, S::function, K::integer},
        {"DVC_PNL_PDM_START_PULLPRINT_LIST_STATUS", &DVC_PNL_PDM_START_PULLPRINT_LIST_STATUS,
         S::cross_function, S::cross_function, K::valueset},
        {"DVC_PNL_PDM_STATUS_PAGE_STATE", &DVC_PNL_PDM_STATUS_PAGE_STATE, S::function, S::function,
         K::integer},
        {"DVC_PNL_PDM_SYSTEM_MENU_COUNTER_WINDOW", &DVC_PNL_PDM_SYSTEM_MENU_COUNTER_WINDOW,
         S::application, S::application, K::integer},
        {"DVC_PNL_PDM_TEST_PRINT_END_CMD_ID", &DVC_PNL_PDM_TEST_PRINT_END_CMD_ID, S::cross_function,
         S::cross_function, K::integer},
        {"DVC_PNL_PDM_TEST_PRINT_END_DATA", &DVC_PNL_PDM_TEST_PRINT_END_DATA, S::cross_function,
         S::cross_function, K::any},
        {"DVC_PNL_PDM_TEST_PRINT_PG_CREATE_POSITION", &DVC_PNL_PDM_TEST_PRINT_PG_CREATE_POSITION,
         S::cross_function, S::cross_function, K::any},
        {"DVC_PNL_PDM_TEST_PRINT_PG_PATTERN", &DVC_PNL_PDM_TEST_PRINT_PG_PATTERN, S::cross_function,
         S::cross_function, K::integer},
        {"DVC_PNL_PDM_USB_INFO_DISPLAY_FLAG", &DVC_PNL_PDM_USB_INFO_DISPLAY_FLAG, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_USB_KEYBOARD_TYPE", &DVC_PNL_PDM_USB_KEYBOARD_TYPE, S::application,
         S::application, K::integer},
        {"DVC_PNL_PDM_WIFI_DIRECT_DEVICE_NAME", &DVC_PNL_PDM_WIFI_DIRECT_DEVICE_NAME,
         S::application, S::application, K::string},
        {"DVC_PNL_PDM_WSD_DISTINATION_STATE", &DVC_PNL_PDM_WSD_DISTINATION_STATE, S::function,
         S::function, K::integer},
        {"DVC_PNL_PDM_WSD_SCAN_MODE", &DVC_PNL_PDM_WSD_SCAN_MODE, S::application, S::application,
         K::integer},
    };
    std::sort(t.begin(), t.end(),
              [](const dm_key_info& a, const dm_key_info& b) { return a.name < b.name; });
    return t;
  }();
  return table;
}

const dm_key_info* find_dm_key(std::string_view name) {
  const auto& table = dm_keys();
  auto it = std::lower_bound(table.begin(), table.end(), name,
                             [](const dm_key_info& k, std::string_view n) { return k.name < n; });
  return it != table.end() && it->name == name ? &*it : nullptr;
}

}  // namespace host
}  // namespace orvanta
