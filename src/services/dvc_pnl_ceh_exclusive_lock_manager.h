// Exclusive locks that the panel holds on data that one place at a time may edit: document boxes,
// the address book, user login data, job accounting data and a network option's setting.
#pragma once

#include <memory>

#include "orvanta/platform/dvu_pnl_evd_event_dispatcher.h"

namespace orvanta {

// Why a function wants the address book; 0 means it does not.
enum DVC_PNL_CEH_ENUM_REASON_OF_LOCKING : int {
  DVC_PNL_CEH_REASON_OF_LOCKING_NONE = 0,
  DVC_PNL_CEH_REASON_OF_LOCKING_1 = 1,
  DVC_PNL_CEH_REASON_OF_LOCKING_2 = 2,
};

// The box number of a lock on a whole kind of box.
inline constexpr long DVC_PNL_CEH_EXCLUSION_LOCK_MANAGER_NO_SELECT = -1;

// Lock kinds of the lock service.
inline constexpr long DVC_PNL_CEH_LOCK_KIND_USER_LOGIN = 1;
inline constexpr long DVC_PNL_CEH_LOCK_KIND_JOB_ACCOUNTING = 2;
inline constexpr long DVC_PNL_CEH_LOCK_KIND_ADDRESSBOOK = 3;
inline constexpr long DVC_PNL_CEH_LOCK_KIND_BOX = 5;
inline constexpr long DVC_PNL_CEH_LOCK_KIND_OPT_NIC = 7;

// A box the panel holds: kind, number and the function that took it; all -1 when free.
class dvc_pnl_ceh_locked_box {
 public:
  bool holds(long kind, long number) const { return kind_ == kind && number_ == number; }
  void set(long kind, long number, int function) {
    kind_ = kind;
    number_ = number;
    function_ = function;
  }
  void clear() { set(-1, -1, -1); }

  long kind_ = -1;
  long number_ = -1;
  int function_ = -1;
};

// The address book: who holds it and why, and what functions 3, 4 and 10 want it for.
class dvc_pnl_ceh_locked_addressbook {
 public:
  // What `function` wants; 0 for a function that is not tracked.
  DVC_PNL_CEH_ENUM_REASON_OF_LOCKING wanted_by(int function) const;
  void want(int function, DVC_PNL_CEH_ENUM_REASON_OF_LOCKING reason);

  int function_ = -1;
  DVC_PNL_CEH_ENUM_REASON_OF_LOCKING reason_ = DVC_PNL_CEH_REASON_OF_LOCKING_NONE;
  DVC_PNL_CEH_ENUM_REASON_OF_LOCKING want_send_ = DVC_PNL_CEH_REASON_OF_LOCKING_NONE;    // 3
  DVC_PNL_CEH_ENUM_REASON_OF_LOCKING want_fax_ = DVC_PNL_CEH_REASON_OF_LOCKING_NONE;     // 4
  DVC_PNL_CEH_ENUM_REASON_OF_LOCKING want_system_ = DVC_PNL_CEH_REASON_OF_LOCKING_NONE;  // 10
};

// One lock without arguments: 1 while the panel holds it.
class dvc_pnl_ceh_locked_user_information {
 public:
  int locked_ = 0;
};

class dvc_pnl_ceh_exclusive_lock_manager : public dvu_pnl_evd_event_handler {
 public:
  // The manager; the first use creates it and subscribes it to its events.
  static dvc_pnl_ceh_exclusive_lock_manager* get_instance();
  // Drops the manager with its records and subscriptions; the next use starts afresh. Tests and
  // the runtime only.
  static void reset_for_tests();

  ~dvc_pnl_ceh_exclusive_lock_manager() override;
  dvc_pnl_ceh_exclusive_lock_manager(const dvc_pnl_ceh_exclusive_lock_manager&) = delete;
  dvc_pnl_ceh_exclusive_lock_manager& operator=(const dvc_pnl_ceh_exclusive_lock_manager&) = delete;

  // ---- locking: 1 held (or nothing to do), 0 refused ----

  // A box (or, with number -1, a kind of box) for `function` (5 the box function, 10 the system
  // menu). A box the panel holds already is granted without asking.
  int lockBox(int function, long kind, long number, long reason);
  // Gives the box back when `function` holds exactly that box.
  int unlockBox(int function, long kind, long number, long reason);
  // Notes what `function` wants the book for and locks it when it is free.
  int lockAddressbook(int function, DVC_PNL_CEH_ENUM_REASON_OF_LOCKING reason);
  // Gives the book back when `function` holds it for `reason`; the send function takes it again
  // when it still wants it for reason 1.
  int unlockAddressbook(int function, DVC_PNL_CEH_ENUM_REASON_OF_LOCKING reason);
  int lockUserLoginInformation();
  int unlockUserLoginInformation();
  int lockJobAccountingInformation();
  int unlockJobAccountingInformation();
  int lockOptNicSetting();
  int unlockOptNicSetting();
  // Gives up all that `function` holds (5, 3, 4 and 10 hold something).
  void unlockFunction(int function);
  // The requests to the lock service: 1 success, 0 refused or not delivered.
  int lock(long kind, long a, long b, long c);
  int unlock(long kind, long a, long b, long c);

  // ---- queries ----

  // 1 when the panel holds that box, with the function that took it in `owner`.
  int isBoxLocked(long kind, long number, int& owner);
  // 1 when the panel holds the book, with owner and reason; else 0 with both 0.
  int isAddressbookLocked(int& function, DVC_PNL_CEH_ENUM_REASON_OF_LOCKING& reason);
  int isUserLoginInformationLocked();
  int isJobAccountingInformationLocked();
  int isOptNicSettingLocked();
  // 0 while the book is held or a box of kind 2 is held, else 1.
  int isURDSEnable();

  // ---- other requests ----

  // Locks (1) or unlocks (0) pull print for the logged-in user: 0 when the machine answers 1,
  // else -1.
  int pullprint_exclusive_lock(int lock);
  // The number of destinations of `function`'s job; 0 when it cannot be read.
  long get_destination_count(long function);

  // Settings resets and leaving functions give locks back; always 1, so the screens hear the
  // event too.
  int dvu_pnl_evd_notify(const dvc_pnl_evh_panel_event& event) override;

 private:
  dvc_pnl_ceh_exclusive_lock_manager();

  // One request of the lock service under (0, 503, `command`).
  int request(unsigned long command, long kind, long a, long b, long c);
  // The network option status in an event (under (0, 3362) key 714); -1 when it has none.
  long getOptNicStatus(const dvc_pnl_evh_panel_event& event);
  int lock_information(dvc_pnl_ceh_locked_user_information& record, long kind);
  int unlock_information(dvc_pnl_ceh_locked_user_information& record, long kind);
  void unlock_all_information();
  // The box record of `function`, or nullptr for a function that keeps none.
  dvc_pnl_ceh_locked_box* box_of(int function);
  // A settings reset of `from` hands the book on to `to` (248: 3 to 4, 249: 4 to 3).
  void hand_over_addressbook(int from, int to);

  static dvc_pnl_ceh_exclusive_lock_manager* s_instance_;

  std::unique_ptr<dvc_pnl_ceh_locked_box> box_;
  std::unique_ptr<dvc_pnl_ceh_locked_box> sys_box_;
  std::unique_ptr<dvc_pnl_ceh_locked_addressbook> addressbook_;
  std::unique_ptr<dvc_pnl_ceh_locked_user_information> user_login_;
  std::unique_ptr<dvc_pnl_ceh_locked_user_information> job_accounting_;
  std::unique_ptr<dvc_pnl_ceh_locked_user_information> opt_nic_;
};

}  // namespace orvanta
