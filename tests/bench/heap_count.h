// Heap accounting of the benchmark program: every operator new and delete goes through it.
#pragma once

// Bytes the program holds from operator new now.
long long live_heap_bytes();
