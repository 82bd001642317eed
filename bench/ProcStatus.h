// The process's own memory figures, as Linux keeps them in /proc/self.
#pragma once

#include <fstream>
#include <string>

namespace lumen::bench {

// The number of a "<key>: ... kB" line of /proc/self/status (VmRSS, VmHWM ...),
// or -1 when there is no such line.
inline long statusKb(const char* key)
{
    std::ifstream status("/proc/self/status");
    std::string line;
    const std::string prefix = std::string(key) + ":";
    while (std::getline(status, line)) {
        if (line.rfind(prefix, 0) == 0)
            return std::stol(line.substr(prefix.size()));
    }
    return -1;
}

// Sets the peak (VmHWM) back to what the process holds now.
inline void resetPeak()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

} // namespace lumen::bench
