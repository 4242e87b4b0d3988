#pragma once

#include "services/Application.h"

namespace kestrel::services {

// The hourglass is shown while it lives.
class Hourglass {
  public:
    explicit Hourglass(Application& application) : application_(application) {
        application_.ShowHourglass(true);
    }
    ~Hourglass() { application_.ShowHourglass(false); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

  private:
    Application& application_;
};

}  // namespace kestrel::services
