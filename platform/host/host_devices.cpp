// Host device controllers: LCD, LEDs, buzzer and key controller, each recording into devices().
#include <algorithm>
#include <array>

#include "host_internal.h"
#include "orvanta/platform/dvu_pnl_dec_controllers.h"

namespace orvanta {
namespace host {
namespace {

std::array<unsigned char, kFrameBytes> copy_frame(const unsigned char* img) {
  std::array<unsigned char, kFrameBytes> frame{};
  std::copy(img, img + kFrameBytes, frame.begin());
  return frame;
}

// A refused call records nothing: the record shows what the panel would have shown or sounded.
class host_lcd final : public dvu_pnl_dec_lcd_controller {
 public:
  int dvu_pnl_dec_set_lcd_bitmap_data(const unsigned char* img) override {
    if (devices().refuse_lcd || img == nullptr)
      return 0;
    devices().frames.push_back(copy_frame(img));
    return 1;
  }
  int dvu_pnl_dec_set_lcd_bitmap_data_lock_screen(const unsigned char* img, int source,
                                                  int exist) override {
    if (devices().refuse_lcd || img == nullptr)
      return 0;
    devices().lock_screen_frames.push_back({copy_frame(img), source, exist});
    return 1;
  }
  int dvu_pnl_dec_set_lcd_reverse_blink_data(int x, int width, int y, int height,
                                             int mode) override {
    if (devices().refuse_lcd)
      return 0;
    devices().blinks.push_back({x, width, y, height, mode});
    return 1;
  }
  int dvu_pnl_dec_set_lcd_reverse_blink_end() override {
    if (devices().refuse_lcd)
      return 0;
    ++devices().blink_ends;
    return 1;
  }
};

class host_led final : public dvu_pnl_dec_led_controller {
 public:
  int dvu_pnl_dec_set_led_status(LED_ID id, LED_STATUS_ID status) override {
    device_record& d = devices();
    if (d.refuse_led)
      return 0;
    d.led_calls.push_back({id, status});
    auto it = std::find_if(d.led_status.begin(), d.led_status.end(),
                           [id](const DVU_PNL_DEC_LED_STATUS& s) { return s.id == id; });
    if (it == d.led_status.end()) {
      d.led_status.push_back({id, status});
    } else {
      it->status = status;
    }
    return 1;
  }
  int dvu_pnl_dec_get_led_status(std::vector<DVU_PNL_DEC_LED_STATUS>& list) override {
    list.clear();
    if (devices().refuse_led)
      return 0;
    list = devices().led_status;
    return 1;
  }
};

class host_buzzer final : public dvu_pnl_dec_buzzer_controller {
 public:
  int dvu_pnl_dec_set_buzzer_control(BUZZER_PATTERN pattern) override {
    if (devices().refuse_buzzer)
      return 0;
    devices().buzzer.push_back(pattern);
    return 1;
  }
};

class host_keys final : public dvu_pnl_dec_key_controller {
 public:
  int dvu_pnl_dec_throw_key_event(DVU_PNL_DEC_PANEL_COMMAND command) override {
    if (devices().refuse_key)
      return 0;
    devices().panel_commands.push_back(command);
    return 1;
  }
};

}  // namespace

device_record& devices() {
  static device_record record;
  return record;
}

void reset_devices() {
  devices() = device_record{};
}

}  // namespace host

dvu_pnl_dec_lcd_controller* dvu_pnl_dec_lcd_controller::dvu_pnl_dec_get_instance() {
  static host::host_lcd lcd;
  return &lcd;
}

dvu_pnl_dec_led_controller* dvu_pnl_dec_led_controller::dvu_pnl_dec_get_instance() {
  static host::host_led led;
  return &led;
}

dvu_pnl_dec_buzzer_controller* dvu_pnl_dec_buzzer_controller::dvu_pnl_dec_get_instance() {
  static host::host_buzzer buzzer;
  return &buzzer;
}

dvu_pnl_dec_key_controller* dvu_pnl_dec_key_controller::dvu_pnl_dec_get_instance() {
  static host::host_keys keys;
  return &keys;
}

}  // namespace orvanta
