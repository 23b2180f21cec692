.pragma library
// Line drawings on a square of 100 x 100.

function draw(name, c, colours) {
    c.lineCap = "round"
    c.lineJoin = "round"
    c.strokeStyle = colours.ink
    c.fillStyle = colours.accent
    drawings[name](c, colours)
}

function path(c, points, closed) {
    c.beginPath()
    c.moveTo(points[0], points[1])
    for (let i = 2; i < points.length; i += 2) c.lineTo(points[i], points[i + 1])
    if (closed) c.closePath()
}
function line(c, points) { path(c, points, false); c.stroke() }
function shape(c, points) { path(c, points, true); c.fill() }
function circle(c, x, y, r) { c.beginPath(); c.arc(x, y, r, 0, 2 * Math.PI); c.closePath() }
function box(c, x, y, w, h, r) { c.beginPath(); c.roundedRect(x, y, w, h, r, r) }
function accented(c, colours) { c.strokeStyle = colours.accent }

function sun(c, colours, x, y, r) {
    c.fillStyle = colours.accent
    circle(c, x, y, r)
    c.fill()
    accented(c, colours)
    for (let i = 0; i < 8; ++i) {
        const dx = Math.cos(i * Math.PI / 4), dy = Math.sin(i * Math.PI / 4)
        line(c, [x + dx * r * 1.45, y + dy * r * 1.45, x + dx * r * 1.9, y + dy * r * 1.9])
    }
    c.strokeStyle = colours.ink
}
function house(c, x, y, w, h) {
    line(c, [x, y, x, y - h, x + w / 2, y - h - w * 0.4, x + w, y - h, x + w, y])
    line(c, [x + w * 0.35, y, x + w * 0.35, y - h * 0.4, x + w * 0.65, y - h * 0.4, x + w * 0.65, y])
    box(c, x + w * 0.15, y - h * 0.85, w * 0.22, h * 0.25, 1)
    c.stroke()
    box(c, x + w * 0.63, y - h * 0.85, w * 0.22, h * 0.25, 1)
    c.stroke()
}
function tree(c, x, y, r) {
    line(c, [x, y, x, y - r])
    for (const [dx, dy, k] of [[-0.5, -1.3, 0.55], [0.5, -1.3, 0.55], [0, -1.9, 0.6]]) {
        circle(c, x + dx * r, y + dy * r, k * r)
        c.stroke()
    }
}
function tablet(c, colours, x, y, w, h) {
    c.fillStyle = colours.ground
    box(c, x, y, w, h, 6)
    c.fill()
    c.stroke()
}
function arrow(c, x0, y0, x1, y1, head) {
    const length = Math.hypot(x1 - x0, y1 - y0)
    const dx = (x1 - x0) / length * head, dy = (y1 - y0) / length * head
    line(c, [x0, y0, x1, y1])
    line(c, [x1 - dx - dy, y1 - dy + dx, x1, y1, x1 - dx + dy, y1 - dy - dx])
}
function pointer(c, colours, turns) {
    accented(c, colours)
    c.translate(50, 50)
    c.rotate(turns * Math.PI / 2)
    c.lineWidth *= 1.7
    arrow(c, -32, 0, 32, 0, 18)
}
function roll(c, colours, direction) {
    accented(c, colours)
    c.translate(50, 50)
    c.scale(direction, 1)
    c.lineWidth *= 1.7
    c.beginPath()
    c.arc(0, 0, 32, -Math.PI, 0.35 * Math.PI)
    c.stroke()
    line(c, [4, 20, 13, 30, 24, 21])
}
function tick(c, x, y, s) { line(c, [x - s, y, x - s * 0.3, y + s * 0.7, x + s, y - s * 0.7]) }

const drawings = {
    sun: (c, k) => sun(c, k, 50, 50, 22),
    scenery: (c, k) => {
        sun(c, k, 80, 20, 8)
        house(c, 8, 84, 38, 34)
        tree(c, 66, 84, 15)
        tree(c, 87, 84, 9)
        line(c, [2, 84, 98, 84])
    },
    photos: (c, k) => {
        tablet(c, k, 22, 28, 56, 42)
        accented(c, k)
        circle(c, 50, 49, 10)
        c.stroke()
        arrow(c, 14, 84, 2, 84, 6)
        line(c, [2, 84, 38, 84])
        arrow(c, 62, 84, 98, 84, 6)
    },
    align: (c, k) => {
        c.globalAlpha = 0.5
        accented(c, k)
        house(c, 34, 74, 44, 34)
        c.globalAlpha = 1
        c.strokeStyle = k.ink
        house(c, 22, 74, 44, 34)
        accented(c, k)
        arrow(c, 72, 90, 30, 90, 6)
    },
    turn: (c, k) => {
        tablet(c, k, 24, 34, 52, 38)
        accented(c, k)
        c.beginPath()
        c.arc(50, 46, 40, 1.22 * Math.PI, 1.78 * Math.PI)
        c.stroke()
        line(c, [75, 4, 77, 16, 65, 19])
        line(c, [25, 4, 23, 16, 35, 19])
    },
    move: (c, k) => {
        accented(c, k)
        c.lineWidth *= 1.7
        arrow(c, 58, 50, 92, 50, 14)
        arrow(c, 42, 50, 8, 50, 14)
    },
    pause: (c, k) => {
        box(c, 28, 20, 14, 60, 4)
        c.fill()
        box(c, 58, 20, 14, 60, 4)
        c.fill()
    },
    tick: (c, k) => {
        c.strokeStyle = k.ink
        c.lineWidth *= 2.2
        tick(c, 50, 52, 30)
    },
    done: (c, k) => {
        c.fillStyle = k.done
        circle(c, 50, 50, 46)
        c.fill()
        c.strokeStyle = k.ground
        c.lineWidth *= 2
        tick(c, 50, 51, 22)
    },
    nothing: (c, k) => {
        c.fillStyle = k.ground
        circle(c, 50, 50, 44)
        c.fill()
        c.lineWidth *= 2
        c.stroke()
        line(c, [30, 50, 70, 50])
    },
    soundOn: (c, k) => {
        path(c, [12, 38, 30, 38, 52, 18, 52, 82, 30, 62, 12, 62], true)
        c.stroke()
        accented(c, k)
        for (const r of [18, 34]) {
            c.beginPath()
            c.arc(56, 50, r, -0.25 * Math.PI, 0.25 * Math.PI)
            c.stroke()
        }
    },
    soundOff: (c, k) => {
        path(c, [12, 38, 30, 38, 52, 18, 52, 82, 30, 62, 12, 62], true)
        c.stroke()
        line(c, [66, 40, 86, 60])
        line(c, [86, 40, 66, 60])
    },
    attention: (c, k) => {
        accented(c, k)
        path(c, [50, 10, 94, 88, 6, 88], true)
        c.stroke()
        line(c, [50, 38, 50, 60])
        circle(c, 50, 73, 3)
        c.fill()
    },
    camera: (c, k) => {
        tablet(c, k, 8, 34, 84, 34)
        circle(c, 30, 51, 9)
        c.stroke()
        circle(c, 70, 51, 9)
        c.stroke()
        accented(c, k)
        circle(c, 50, 51, 5)
        c.stroke()
    },
    missing: (c, k) => {
        c.globalAlpha = 0.55
        drawings.camera(c, k)
        c.globalAlpha = 1
        accented(c, k)
        c.lineWidth *= 1.5
        line(c, [22, 82, 78, 18])
    },
    rearMissing: (c, k) => {
        tablet(c, k, 10, 18, 80, 60)
        circle(c, 50, 40, 12)
        c.stroke()
        accented(c, k)
        c.lineWidth *= 1.5
        line(c, [28, 66, 72, 14])
    },
    update: (c, k) => {
        line(c, [14, 62, 14, 86, 86, 86, 86, 62])
        accented(c, k)
        c.lineWidth *= 1.5
        arrow(c, 50, 12, 50, 68, 16)
    },
    chevronLeft: (c, k) => { accented(c, k); c.lineWidth *= 2.5; line(c, [62, 20, 34, 50, 62, 80]) },
    chevronRight: (c, k) => { accented(c, k); c.lineWidth *= 2.5; line(c, [38, 20, 66, 50, 38, 80]) },
    arrowRight: (c, k) => pointer(c, k, 0),
    arrowDown: (c, k) => pointer(c, k, 1),
    arrowLeft: (c, k) => pointer(c, k, 2),
    arrowUp: (c, k) => pointer(c, k, 3),
    clockwise: (c, k) => roll(c, k, 1),
    counterclockwise: (c, k) => roll(c, k, -1),
    eye: (c, k) => {
        c.lineWidth *= 1.5
        c.beginPath()
        c.moveTo(8, 50)
        c.quadraticCurveTo(50, 10, 92, 50)
        c.quadraticCurveTo(50, 90, 8, 50)
        c.stroke()
        circle(c, 50, 50, 12)
        c.stroke()
    }
}
