// Page open and close notices of the host page stack, for the parts of the host that follow pages.
#pragma once

#include <vector>

namespace orvanta::host {

class page_listener {
 public:
  virtual ~page_listener() = default;
  virtual void page_opened(int function, int contents_id) = 0;
  virtual void page_closed(int function, int contents_id) = 0;
};

// The page stack reports every page it opens and closes here; listeners hear them in the order
// they were added.
class page_lifecycle {
 public:
  static page_lifecycle& instance();

  void add_listener(page_listener* listener);
  void remove_listener(page_listener* listener);

  void opened(int function, int contents_id);
  void closed(int function, int contents_id);

 private:
  page_lifecycle() = default;
  std::vector<page_listener*> listeners_;
};

}  // namespace orvanta::host
