#pragma once

#include <string_view>

namespace orlo {

struct Form;

// The display of a long operation. The calls come in this order: text, maximum, value, show; text and value
// for each stage; close.
class ProgressHost {
  public:
    virtual ~ProgressHost() = default;

    virtual void SetText(std::string_view text) = 0;
    virtual void SetMax(int maximum) = 0;
    virtual void SetValue(int value) = 0;  // 0 to the maximum
    virtual void Show(Form* owner) = 0;    // does not block
    virtual void Close() = 0;
};

}  // namespace orlo
