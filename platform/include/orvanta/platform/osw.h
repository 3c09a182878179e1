// Operating services: semaphores, the creation guard, timers and clocks.
#pragma once

#include <ctime>
#include <memory>

namespace orvanta {

// A counting semaphore. request(-1) waits for ever, request(0) does not wait, request(n) waits
// up to n ms; each answers 0 when it got the semaphore. release() answers 0.
class OSW_Mutex_Semaphore {
 public:
  explicit OSW_Mutex_Semaphore(int count);
  ~OSW_Mutex_Semaphore();
  OSW_Mutex_Semaphore(const OSW_Mutex_Semaphore&) = delete;
  OSW_Mutex_Semaphore& operator=(const OSW_Mutex_Semaphore&) = delete;

  int request(int timeout_ms);
  int release();

 private:
  struct impl;
  std::unique_ptr<impl> impl_;
};

// Held for the lifetime of the object: the one process-wide guard around singleton creation.
class OSW_Thread_Guard {
 public:
  OSW_Thread_Guard();
  ~OSW_Thread_Guard();
  OSW_Thread_Guard(const OSW_Thread_Guard&) = delete;
  OSW_Thread_Guard& operator=(const OSW_Thread_Guard&) = delete;
};

// A one-shot timer. When it expires its callback runs on a timer thread (or, under the host's
// virtual clock, when time is advanced) with the arguments given to start().
class OSW_Timer_Control {
 public:
  using callback = void (*)(OSW_Timer_Control& control, int a1, int a2, int a3, int a4);

  explicit OSW_Timer_Control(int stack_size);
  ~OSW_Timer_Control();
  OSW_Timer_Control(const OSW_Timer_Control&) = delete;
  OSW_Timer_Control& operator=(const OSW_Timer_Control&) = delete;

  // Starts (or restarts) the timer; answers 0.
  int start(int ms, callback cb, int a1, int a2, int a3, int a4);
  // Stops it; an expiry not yet delivered is dropped. Answers 0.
  int stop();
  bool running() const;

 private:
  struct impl;
  std::unique_ptr<impl> impl_;
};

// Milliseconds since an arbitrary start.
unsigned long emwOSWGetSysTimer();
// Local calendar time of `seconds` since the epoch; 0 on success.
int emwCLBLocalTime(long seconds, std::tm* out);

}  // namespace orvanta
