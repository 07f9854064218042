#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include <string>

namespace velmora::test {

// File permissions mean nothing to root: while this lives, a test that runs as root is nobody in
// particular, who may use `folder`.
class OrdinaryUser {
  public:
    explicit OrdinaryUser(const std::string& folder) : isRoot_(geteuid() == 0) {
        if (isRoot_) {
            chmod(folder.c_str(), 0777);
            (void)!seteuid(65534);
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser() {
        if (isRoot_)
            (void)!seteuid(0);
    }

  private:
    bool isRoot_;
};

}  // namespace velmora::test
