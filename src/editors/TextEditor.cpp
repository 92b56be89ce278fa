#include "editors/TextEditor.h"

#include "core/Text.h"

namespace orlo {

std::string PlainText(std::string_view stored) {
    const std::string lines = ReplaceAll(stored, "\\n", "\r\n");
    return ReplaceAll(ReplaceAll(lines, "\\t", "\t"), "\\/", "/");
}

std::string StoredText(std::string_view plain) {
    std::string stored = ReplaceAll(plain, "\r\n", "\\n");
    stored = ReplaceAll(ReplaceAll(stored, "\n", "\\n"), "\r", "\\n");
    return ReplaceAll(ReplaceAll(stored, "\t", "\\t"), "/", "\\/");
}

std::string EditText(Context& context, std::string_view title, const std::string& text, Form& owner) {
    TextEditForm& form = context.forms.frmTextEdit;
    form.caption = title;
    form.txtText.text = PlainText(text);
    form.Result = text;
    form.SetFocus(form.txtText);
    context.services.windows.ShowModal(form, &owner);
    return form.Result;
}

void AcceptText(Context& context) {
    TextEditForm& form = context.forms.frmTextEdit;
    form.Result = StoredText(form.txtText.text);
    form.closeRequest = true;
}

void CancelText(Context& context) {
    context.forms.frmTextEdit.closeRequest = true;
}

}  // namespace orlo
