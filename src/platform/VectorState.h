// The upper halves of the AVX registers. Something that QApplication's construction runs leaves them in
// use, and until they are cleared many CPUs make every SSE instruction of this program wait on them:
// reading a settings file of a thousand profiles took twice as long. Clearing them costs nothing.
#pragma once

namespace platform {

inline void ClearUpperVectorState() {
#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
    if (__builtin_cpu_supports("avx"))
        asm volatile("vzeroupper");
#endif
}

}  // namespace platform
