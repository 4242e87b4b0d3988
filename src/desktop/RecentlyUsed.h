#pragma once

#include "platform/system/FileSystem.h"
#include "services/RecentDocuments.h"

namespace kestrel::desktop {

// The list of recent documents of freedesktop.org desktops, recently-used.xbel in the user's data
// folder. What other programs write meanwhile is kept: the list is read again when it changed
// before it could be replaced.
class RecentlyUsed : public services::RecentDocuments {
  public:
    // `list` is the file; empty for none. `files` must outlive this.
    RecentlyUsed(system::FileSystem& files, std::string list)
        : files_(files), list_(std::move(list)) {}

    void Add(const std::string& path) override;

  private:
    system::FileSystem& files_;
    std::string list_;
};

}  // namespace kestrel::desktop
