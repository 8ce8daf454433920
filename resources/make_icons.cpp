// Draws the icons: make_icons OUTFOLDER SIDE IN.svg [IN.svg ...] writes OUTFOLDER/NAME.png, SIDE pixels square.
// Runs at build time on machines without a display, hence the platform of the application below.
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

namespace {

bool Draw(const QString& from, const QString& to, int side) {
  QSvgRenderer drawing(from);
  QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  if (!drawing.isValid() || picture.isNull())
    return false;
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  drawing.render(&painter);
  painter.end();
  return picture.save(to, "PNG");
}

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication app(argc, argv);
  const QStringList words = QGuiApplication::arguments();
  const int side = words.value(2).toInt();
  if (words.size() < 4 || side < 1) {
    QTextStream(stderr) << "make_icons OUTFOLDER SIDE IN.svg [IN.svg ...]\n";
    return 2;
  }
  const QDir out(words.at(1));
  out.mkpath(QStringLiteral("."));
  for (const QString& from : words.mid(3)) {
    const QString to = out.filePath(QFileInfo(from).completeBaseName() + QStringLiteral(".png"));
    if (Draw(from, to, side))
      continue;
    QTextStream(stderr) << from << ": cannot be drawn into " << to << "\n";
    return 1;
  }
  return 0;
}
