// Fan-out of the page stack's open and close notices.
#include "orvanta/host/page_lifecycle.h"

#include <algorithm>

namespace orvanta::host {

page_lifecycle& page_lifecycle::instance() {
  static page_lifecycle p;
  return p;
}

void page_lifecycle::add_listener(page_listener* listener) {
  if (listener == nullptr)
    return;
  if (std::find(listeners_.begin(), listeners_.end(), listener) == listeners_.end()) {
    listeners_.push_back(listener);
  }
}

void page_lifecycle::remove_listener(page_listener* listener) {
  listeners_.erase(std::remove(listeners_.begin(), listeners_.end(), listener), listeners_.end());
}

void page_lifecycle::opened(int function, int contents_id) {
  for (page_listener* l : std::vector<page_listener*>(listeners_))
    l->page_opened(function, contents_id);
}

void page_lifecycle::closed(int function, int contents_id) {
  for (page_listener* l : std::vector<page_listener*>(listeners_))
    l->page_closed(function, contents_id);
}

}  // namespace orvanta::host
