// The listing of the texts and icons that the parts of a screen show.
#include "orvanta/sim/screen_texts.h"

#include "orvanta/host/panel_host.h"
#include "orvanta/platform/dvu_pnl_gcp_resource.h"

namespace orvanta::sim {
namespace {

void add_label_items(const dvu_pnl_gcp_label& label, int part, int row,
                     const resource_table& resources, std::vector<shown_item>& out) {
  for (const dvu_pnl_gcp_label_item& item : label.items()) {
    if (item.is_icon) {
      out.push_back({part, row, true, resources.icon(item.resource)});
    } else {
      out.push_back(
          {part, row, false, item.resource == -1 ? item.text : resources.text(item.resource)});
    }
  }
}

}  // namespace

void resource_table::add_text(int id, const std::string& text) {
  host::set_text_resource(id, text);
}

std::string resource_table::text(int id) const {
  return dvu_pnl_gcp_resource::get_text_resource(id);
}

std::string resource_table::icon(int id) const {
  auto it = icons_.find(id);
  return it == icons_.end() ? std::to_string(id) : it->second;
}

std::vector<shown_item> shown_items(const std::vector<std::pair<int, dvu_pnl_gcp_parts*>>& parts,
                                    const resource_table& resources) {
  std::vector<shown_item> out;
  for (const auto& [id, part] : parts) {
    if (part == nullptr || !part->dvu_pnl_gcp_is_visible())
      continue;
    switch (part->kind()) {
      case dvu_pnl_gcp_part_kind::icon: {
        int icon = 0;
        if (part->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_ICON, icon) == 0)
          out.push_back({id, -1, true, resources.icon(icon)});
        break;
      }
      case dvu_pnl_gcp_part_kind::list: {
        auto* list = static_cast<dvu_pnl_gcp_list*>(part);
        for (int r = 0; r <= list->dvu_pnl_gcp_get_max_row(); ++r) {
          dvu_pnl_gcp_list_row* row = nullptr;
          if (list->dvu_pnl_gcp_get_row(r, row) == 0 && row != nullptr)
            add_label_items(*row, id, r, resources, out);
        }
        break;
      }
      case dvu_pnl_gcp_part_kind::label:
        add_label_items(static_cast<const dvu_pnl_gcp_label&>(*part), id, -1, resources, out);
        break;
      case dvu_pnl_gcp_part_kind::flexiblekey: {
        int resource = -1;
        if (part->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_KEY_TEXT, resource) == 0 &&
            resource >= 0)
          out.push_back({id, -1, false, resources.text(resource)});
        break;
      }
      case dvu_pnl_gcp_part_kind::edit_box:
        out.push_back(
            {id, -1, false, static_cast<const dvu_pnl_gcp_input_edit_box&>(*part).content()});
        break;
      case dvu_pnl_gcp_part_kind::number: {
        int value = 0;
        if (part->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_NUMBER, value) == 0)
          out.push_back({id, -1, false, std::to_string(value)});
        break;
      }
      default: {
        int resource = -1;
        std::string literal;
        if (part->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_TEXT_RESOURCE, resource) == 0 &&
            resource != -1) {
          out.push_back({id, -1, false, resources.text(resource)});
        } else if (part->dvu_pnl_gcp_get_str_val(0, literal) == 0) {
          out.push_back({id, -1, false, literal});
        }
        break;
      }
    }
  }
  return out;
}

std::string format_items(const std::vector<shown_item>& items) {
  std::string out;
  for (const shown_item& item : items) {
    out += std::to_string(item.part);
    if (item.row >= 0)
      out += "." + std::to_string(item.row);
    out += item.is_icon ? " icon " + item.text : " text \"" + item.text + "\"";
    out += '\n';
  }
  return out;
}

}  // namespace orvanta::sim
