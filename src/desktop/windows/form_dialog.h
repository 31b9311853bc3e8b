// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "desktop/binding/form_window.h"

namespace varnholt {

/// The window of a modal form.
class FormDialog : public QDialog {
 public:
    FormDialog(FormWindow* content, QWidget* parent);

    FormWindow& content() { return *content_; }
    /// Ends itself once the form has ended.
    void endWithForm();
    /// A person presses the close box or Escape.
    void reject() override;

 private:
    void makeFirstButtonDefault();

    FormWindow* content_;
};

}  // namespace varnholt
