// Draws the tutorial's hint: a finger on the touched spot, and arrows to both sides.
// Usage: draw-touch-and-drag FILE.png
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 560;
constexpr QPointF kTouched(320, 150);  // position of the fingertip
const QColor kAccent(0xff, 0xb0, 0x30);
const QColor kOutline(0x10, 0x14, 0x18);

QPainterPath rounded(const QRectF& area, qreal radius) {
    QPainterPath path;
    path.addRoundedRect(area, radius, radius);
    return path;
}

/// An arrow to the right of the touched spot; with `direction` -1 to the left.
QPainterPath arrow(qreal direction) {
    QPainterPath path;
    const auto at = [direction](qreal x, qreal y) { return kTouched + QPointF(direction * x, y); };
    path.moveTo(at(110, -14));
    path.lineTo(at(200, -14));
    path.lineTo(at(200, -52));
    path.lineTo(at(280, 0));
    path.lineTo(at(200, 52));
    path.lineTo(at(200, 14));
    path.lineTo(at(110, 14));
    path.closeSubpath();
    return path;
}

QPainterPath thumb() {
    QTransform place;
    place.translate(kTouched.x() - 50, kTouched.y() + 296);
    place.rotate(-38);
    return place.map(rounded({-34, -150, 68, 190}, 34));
}

QPainterPath hand() {
    const qreal x = kTouched.x(), y = kTouched.y();
    QPainterPath path = rounded({x - 36, y - 30, 72, 330}, 36);
    path |= rounded({x + 32, y + 148, 62, 150}, 31);
    path |= rounded({x + 90, y + 164, 58, 150}, 29);
    path |= rounded({x + 144, y + 188, 54, 140}, 27);
    path |= rounded({x - 36, y + 200, 234, 190}, 60);
    return path | thumb();
}

void draw(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kOutline, 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(kAccent);
    painter.drawPath(arrow(1));
    painter.drawPath(arrow(-1));
    QColor ring = kAccent;
    for (const auto& [radius, alpha] : {std::pair(84, 90), std::pair(58, 150)}) {
        ring.setAlpha(alpha);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ring);
        painter.drawEllipse(kTouched, radius, radius);
    }
    painter.setPen(QPen(kOutline, 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::white);
    painter.drawPath(hand());
    for (const QPointF& notch : {QPointF(36, 166), QPointF(94, 182), QPointF(147, 203)})
        painter.drawLine(kTouched + notch, kTouched + notch + QPointF(0, 75));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: draw-touch-and-drag FILE.png\n", stderr);
        return 2;
    }
    QImage picture(kWidth, kHeight, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    draw(painter);
    painter.end();
    return picture.save(argv[1]) ? 0 : 1;
}
