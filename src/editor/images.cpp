// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/html_fragments.h"
#include "editor/pictures.h"
#include "editor/size_form.h"
#include "editor/wait_cursor.h"

#include <my_classes/custom_text_editor.h>
#include <my_classes/image_size_input_dialog.h>

#include <QtGui/QImage>
#include <QtWidgets/QFileDialog>

#include <limits>

namespace my_classes {

using namespace Qt::StringLiterals;

namespace {

/// The file that a person picks; empty if none is picked or `editor` is destroyed meanwhile.
QString ask_for_file(QWidget *editor, const QString &caption, const QString &filter)
{
    // QFileDialog's static functions keep the dialog on the stack, where the parent must not delete it.
    const QPointer<QFileDialog> dialog = new QFileDialog(editor, caption, QString(), filter);
    dialog->setFileMode(QFileDialog::ExistingFile);
    const bool is_accepted = dialog->exec() == QDialog::Accepted;
    QString file = is_accepted && dialog ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return file;
}

/// A side as entered, in pixels. An empty text leaves that side to the picture and does not count.
qint64 entered_side(const QString &text)
{
    return text.isEmpty() ? 0 : entered_number(text).value_or(std::numeric_limits<int>::max());
}

/// The picture scaled to the size entered, as PNG in base64. Takes the picture, to let go of each form of it as soon as
/// the next one is there.
std::optional<QByteArray> scaled_and_encoded(QImage picture, const QString &width, const QString &height)
{
    // With one text empty the picture stays as it is, although the other text is written into the document.
    if (!picture.isNull() && !width.isEmpty() && !height.isEmpty()) {
        const QSize size(int(entered_side(width)), int(entered_side(height)));
        picture = picture.scaled(size);
        if (picture.isNull() && !size.isEmpty())
            return std::nullopt;
    }
    const std::optional<QByteArray> png = encode_picture(std::exchange(picture, {}));
    return png ? std::optional(png->toBase64()) : std::nullopt;
}

} // namespace

void CustomTextEditor::insert_image()
{
    if (text_edit->isReadOnly())
        return;
    const QPointer<CustomTextEditor> still_here(this);
    const QString file_path = ask_for_file(this, tr("Insert Image"), tr("Images (*.png *.xpm *.jpg *.bmp)"));
    if (file_path.isEmpty() || !still_here)
        return;

    std::optional<WaitCursor> wait(std::in_place);
    QImage picture = read_picture(file_path);
    wait.reset();

    ImageSizeInputDialog dialog(picture.width(), picture.height());
    if (!accepted_over(this, &dialog))
        return;
    const auto [width, height] = dialog.get_inputs();
    if (!is_buildable_picture(entered_side(width), entered_side(height)))
        return;

    wait.emplace();
    std::optional<QByteArray> base64 = scaled_and_encoded(std::move(picture), width, height);
    if (!base64)
        return;
    const QString html = image_html(*base64, width, height);
    base64.reset();
    insert_html(text_edit, {html});
}

bool CustomTextEditor::insert_picture(const QImage &picture, const QSize &size)
{
    if (!size.isValid())
        return embed_picture(picture, picture.deviceIndependentSize().toSize());
    if (picture.isNull() || size.isEmpty() || !is_buildable_picture(size.width(), size.height()))
        return false;
    return embed_picture(picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), size);
}

/// Embeds all that the picture has, and shows it in `shown_size`.
bool CustomTextEditor::embed_picture(const QImage &picture, const QSize &shown_size)
{
    if (picture.isNull() || text_edit->isReadOnly() || !is_buildable_picture(picture.width(), picture.height()))
        return false;
    const WaitCursor wait;
    const std::optional<QByteArray> png = encode_picture(picture);
    if (!png)
        return false;
    const auto side = [](int pixels) { return QString::number(pixels); };
    insert_html(text_edit, {image_html(png->toBase64(), side(shown_size.width()), side(shown_size.height()))});
    return true;
}

} // namespace my_classes
