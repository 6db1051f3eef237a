#include "desktop/qt_text.h"

namespace kelvor {

namespace {

QString WithPlainLineEnds(QString text) { return text.replace("\r\n", "\n"); }

/// Where the mark of an access key belongs: before the first letter that is the key; -1 if there is none.
qsizetype MarkPlace(const QString& caption, char key) {
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i].toUpper() == QChar::fromLatin1(key)) return i;
    }
    return -1;
}

bool HasMark(const QString& caption) {
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != u'&') continue;
        if (caption[i + 1] != u'&') return true;
        ++i;
    }
    return false;
}

}  // namespace

QString ToQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string FromQt(const QString& text) { return text.toStdString(); }

WidgetCaption CaptionOf(const Control& control) {
    WidgetCaption caption{WithPlainLineEnds(ToQt(control.text)), -1};
    if (control.accessKey == '\0' || HasMark(caption.text)) return caption;
    caption.addedMark = MarkPlace(caption.text, control.accessKey);
    if (caption.addedMark >= 0) caption.text.insert(caption.addedMark, u'&');
    return caption;
}

QString PlainLabelText(std::string_view caption) {
    return WithPlainLineEnds(ToQt(caption)).replace("&&", "&");
}

}  // namespace kelvor
