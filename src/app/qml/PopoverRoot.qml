import QtQuick
import Vost.App
import Vost.Model

// The whole client inside the popover: the configuration error without
// credentials, the sign-in screen until the session is ready, then the chats.
// The chats are let go while the popover stays closed; the sign-in screen keeps
// what is typed into it.
Rectangle {
    id: root

    required property AppRootView host
    required property PopoverWindow popover

    color: Appearance.background
    Accessible.role: Accessible.Pane
    Accessible.name: "Vost"

    Loader {
        id: screen

        anchors.fill: parent
        focus: true
        active: root.popover.holdsContent || sourceComponent !== chats
        sourceComponent: !root.host.hasCredentials ? configurationError
                                                   : (root.host.session.isReady ? chats : login)
    }

    Component {
        id: configurationError

        AppConfigurationErrorView {}
    }

    Component {
        id: login

        TelegramLoginView {
            session: root.host.session
            focus: true
        }
    }

    Component {
        id: chats

        ChatLayout {
            focus: true
            host: root.host
        }
    }
}
