#pragma once

#include "core/drag_writer.h"
#include "core/image_converter.h"
#include "core/item_preparation.h"
#include "core/pasteboard_ingest.h"
#include "core/picture_items.h"
#include "core/remote_descriptions.h"
#include "core/remote_pictures.h"
#include "core/saved_pictures.h"
#include "core/scratch_spool.h"
#include "core/text_descriptions.h"
#include "fakes/fake_file_locality.h"
#include "fakes/fake_image_codec.h"
#include "fakes/fake_keyboard.h"
#include "fakes/fake_motion_preference.h"
#include "fakes/fake_panel_window.h"
#include "fakes/fake_pasteboard.h"
#include "fakes/fake_remote_files.h"
#include "fakes/fake_text_measurer.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"
#include "shelf/drawing/layer_animator.h"
#include "shelf/drawing/theme.h"
#include "shelf/shelf_view.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

namespace corvane::test {

/// Everything that a shelf view needs, with fakes, and functions for what the user does.
struct ShelfDesk {
    explicit ShelfDesk(const QFont &font = QFont(), const TextMeasurer *measurer = nullptr)
        : theme(font, 96)
        , m_measurer(measurer ? measurer : &fakeMeasurer)
    {
        panel.setFrame({0, 0, 560, 136});
    }

    ShelfView::Context context()
    {
        return {panel,    clock,  motion,     theme,         animator,   *m_measurer,
                keyboard, ingest, dragWriter, savedPictures, preparation};
    }

    static DropItem fileItem(const QString &name, const QString &subtitle = QStringLiteral("TXT"))
    {
        return {DropItem::File{QUrl::fromLocalFile(QStringLiteral("/nowhere/") + name)}, name,
                subtitle, false};
    }
    static DropItem folderItem(const QString &name)
    {
        DropItem item = fileItem(name, QStringLiteral("Folder"));
        item.setIsFolder(true);
        return item;
    }
    static DropItem textItem(const QString &text)
    {
        return {DropItem::Text{text}, text, QStringLiteral("5 characters"), false};
    }

    /// Writes a file and gives its address.
    QUrl writtenFile(const QByteArray &name, const QByteArray &contents) const
    {
        QFile file(temporary.filePath(QString::fromUtf8(name)));
        if (file.open(QFile::WriteOnly))
            file.write(contents);
        return QUrl::fromLocalFile(file.fileName());
    }

    /// Gives the panel the frame that the view wants, as its controller does.
    static void fit(FakePanelWindow &panel, ShelfView &view, const ShelfSnapshot &snapshot)
    {
        panel.setFrame({{100, 500}, view.preferredSize(snapshot)});
    }

    static QImage paint(ShelfView &view, const PanelWindow &panel, double scale = 1)
    {
        const QSizeF size = panel.frame().size();
        QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.translate(0, size.height());
        painter.scale(1, -1);
        view.paint(painter, size, scale);
        return image;
    }

    QTemporaryDir temporary;
    TestClock clock;
    FakePanelWindow panel;
    FakeMotionPreference motion;
    FakeTextMeasurer fakeMeasurer;
    FakeKeyboard keyboard;
    FakeImageCodec codec;
    ScratchSpool spool{temporary.path().toUtf8(), 4711};
    ImageConverter converter{codec};
    FakeWorkQueue work;
    ItemPreparation preparation{spool, clock, work};
    PictureItems pictures{spool, converter, codec, preparation};
    SavedPictures savedPictures{spool, preparation};
    FakeFileLocality locality;
    FakeRemoteFiles remoteFiles;
    RemoteDescriptions remoteDescriptions{remoteFiles};
    RemotePictures remotePictures{remoteFiles, pictures};
    TextDescriptions textDescriptions{work, clock};
    PasteboardIngest ingest{spool,          pictures,        locality, remoteDescriptions,
                            remotePictures, textDescriptions};
    DragWriter dragWriter{Theme::Palette().secondary,
                          [](QPainter &, PhosphorIcon, const QRectF &) {}, locality};
    LayerAnimator animator;
    Theme theme;

private:
    const TextMeasurer *m_measurer;
};

} // namespace corvane::test
