import QtQuick 2.15

// The state of the calibration as received from the application.
QtObject {
    id: status

    readonly property var states: ({
        firstOpened: 0, introduction: 1, lighting: 2, reset: 3, waiting: 5, starting: 6, capturing: 7, found: 8,
        tutorial: 9, refining: 10
    })
    property int state: states.firstOpened
    property string notice: ""  // object name of the notice that hides every page
    property bool failed: false  // the application has reported an error: the user can only leave
    property bool firstCameraAccepted: false
    property bool saving: false
    property bool between: false  // the user has not begun with the second camera yet
    readonly property bool betweenShown: between && state >= states.starting && state <= states.capturing
    readonly property bool paged: notice === "" && !failed && !saving
    property bool singleCamera: false
    property bool secondCamera: false
    property string cameraName: ""

    property string lastSaveFailedText: ""
    property string lastCalibrationText: ""
    property string startText: ""
    property bool howToMoveOffered: false
    property string refinementText: ""
    property string savedText: ""
    property var storedFacts: []
    property bool soundOn: true
    property var history: []        // the newest calibrations first, as described in docs/interface-map.md
    property string reportsFolder: ""
    // Someone has calibrated on this tablet before, and does not need every page to be explained.
    readonly property bool practised: history.some(entry => entry.stored)

    property string lightingTitle: ""
    property string lightingMessage: ""
    property real lightingProgress: 0
    property bool lit: false
    property string lightingContinueLabel: ""
    property bool lightNeeded: false

    property string movementText: ""
    property bool holdStill: false  // what the text asks for
    property real progress: 0
    property int photoCount: 0
    property var photos: []     // the source of each photo's thumbnail; may be fewer than the photos taken
    property var photoWorths: []  // for each photo "", or why it has contributed nothing: "detail" or "repeated"
    property string look: ""    // where the camera should turn: "left", "right", "up", "down" or ""
    property var detail: []     // for each area of the image 0..1, row by row; empty before the first photo
    property var foundTurn: []  // degrees: upwards, to the right, clockwise
    property var foundQuality: ({})  // as described in docs/interface-map.md
    property bool foundRead: false

    property string updatePhase: ""  // "offered", "fetching", "starting" or "failed"
    property string updateVersion: ""
    property real updateReceived: 0  // bytes
    property real updateTotal: 0     // 0 while it is unknown
    property bool updateInterrupted: false
    property string updateFailure: ""
    property bool updateMayTryAgain: false

    // The page with the result is shown between the capture and the next page of the application.
    readonly property bool foundShown: (state === states.tutorial || state === states.refining) && !foundRead
    readonly property bool somethingToLose: firstCameraStorable || (!saving && notice === ""
        && (secondCamera || state >= states.found || (state >= states.starting && photoCount > 0)))
    // The rotation accepted for the first camera can be stored, whatever happens to the second one.
    readonly property bool firstCameraStorable: firstCameraAccepted && !saving

    // An offer must not interrupt a calibration in progress.
    readonly property bool updateShown: !saving && (updatePhase === "offered" ? state <= states.introduction
                                                                              : updatePhase !== "")

    function offerUpdate(version) {
        updateVersion = version
        updatePhase = "offered"
    }
    function fetchUpdate() {
        updateReceived = 0
        updateTotal = 0
        updateInterrupted = false
        updatePhase = "fetching"
    }
    function updateProgressed(received, total) {
        updateReceived = received
        updateTotal = total
        updateInterrupted = false
    }
    function failUpdate(message, mayTryAgain) {
        updateFailure = message
        updateMayTryAgain = mayTryAgain
        updatePhase = "failed"
    }
    function startAttempt() {
        photoCount = 0
        photos = []
        photoWorths = []
        look = ""
        detail = []
        movementText = ""
        holdStill = false
        foundRead = false
    }
    function showSaveText(message) {
        if (saving) savedText = message
        else refinementText = message
    }
}
