import Quillet.Views

Screen {
    id: screen

    loadingView: screen.controller.loadingView
    dialog: screen.controller.dialog
}
