// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "foundation/Services.h"
#include "framework/Geometry.h"

namespace nascor::framework {

/// Ends a view's subscriptions before it destroys it.
struct ViewDeleter {
  template <class View>
  void operator()(View* view) const {
    view->dealloc();
    delete view;
  }
};

template <class View>
using ViewOwner = std::unique_ptr<View, ViewDeleter>;

/// Makes a view in two steps: construction, then `initWithFrame`, whose messages reach the view's own class.
template <class View>
ViewOwner<View> make(const foundation::Services& services, const Rect& frame) {
  ViewOwner<View> view(new View(services));
  view->initWithFrame(frame);
  return view;
}

}  // namespace nascor::framework
