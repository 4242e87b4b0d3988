#pragma once

#include <string>

namespace kestrel::services {

// The desktop's list of documents that its programs used last.
class RecentDocuments {
  public:
    virtual ~RecentDocuments() = default;
    // Tells the list of a file that was opened or saved; an absolute path. Failures are silent.
    virtual void Add(const std::string& path) = 0;
};

}  // namespace kestrel::services
