// Costs behind building a screen's list: reading a machine list row by row, copying value sets,
// and the data manager round trip of a plain record.
#include <benchmark/benchmark.h>

#include <cstdint>

#include "orvanta/host/host_data_manager.h"
#include "orvanta/host/trace_sink.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"

namespace orvanta {
namespace {

// A list answer of `rows` elements with three fields each, nested as the machine sends it.
dvc_pnl_cmm_valueset make_list(long rows) {
  dvc_pnl_cmm_valueset body;
  for (long i = 0; i < rows; ++i) {
    dvc_pnl_cmm_valueset element;
    const unsigned long n = static_cast<unsigned long>(i);
    for (unsigned long field : {1365UL, 1366UL, 1367UL}) {
      const unsigned long path[] = {0, 938, 959, 1501, n, field};
      dvc_pnl_cmm_key k;
      dvc_pnl_ceh_contents_hdl_build_key(k, path, 6);
      element.dvc_pnl_cmm_set_int(k, i);
    }
    const unsigned long elem[] = {0, 938, 959, 1501, n};
    dvc_pnl_cmm_key k;
    dvc_pnl_ceh_contents_hdl_build_key(k, elem, 5);
    body.dvc_pnl_cmm_set_valueset(k, element);
  }
  dvc_pnl_cmm_valueset response;
  const unsigned long body_path[] = {0, 938, 959, 1501};
  dvc_pnl_cmm_key k;
  dvc_pnl_ceh_contents_hdl_build_key(k, body_path, 4);
  response.dvc_pnl_cmm_set_valueset(k, body);
  return response;
}

void BM_ReadListRows(benchmark::State& state) {
  const dvc_pnl_cmm_valueset response = make_list(state.range(0));
  for (auto _ : state) {
    unsigned long path[] = {0, 938, 959, 1501, 0, 1365};
    dvc_pnl_cmm_valueset body;
    dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(path, 0, 4, response, body);
    long sum = 0;
    for (unsigned long i = 0; i < body.dvc_pnl_cmm_size(); ++i) {
      path[4] = i;
      dvc_pnl_cmm_valueset element;
      dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(path, 0, 5, body, element);
      long v = 0;
      dvc_pnl_ceh_contents_hdl_get_int_from_valueset(path, 0, 6, element, v);
      sum += v;
    }
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ReadListRows)->Arg(3)->Arg(20)->Arg(100);

void BM_CopyListAnswer(benchmark::State& state) {
  const dvc_pnl_cmm_valueset response = make_list(state.range(0));
  for (auto _ : state) {
    dvc_pnl_cmm_valueset copy = response;
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(BM_CopyListAnswer)->Arg(20)->Arg(100);

struct plain_record {
  int32_t id;
  char name[64];
  char address[128];
};

void BM_RecordThroughDataManager(benchmark::State& state) {
  plain_record in{1, "name", "address"};
  plain_record out{};
  for (auto _ : state) {
    dvc_pnl_ceh_contents_hdl_set_binary_to_dm(DVC_PNL_PDM_DVC_CEH_BINARY, &in, sizeof in, 1);
    dvc_pnl_ceh_contents_hdl_get_binary_from_dm(DVC_PNL_PDM_DVC_CEH_BINARY, &out, sizeof out, 1);
    benchmark::DoNotOptimize(out);
    // Every access traces; keep the sink from growing through the run.
    host::trace_sink::instance().clear();
  }
}
BENCHMARK(BM_RecordThroughDataManager);

}  // namespace
}  // namespace orvanta
