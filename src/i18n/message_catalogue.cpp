#include "i18n/message_catalogue.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/module1.h"

namespace i18n {
namespace {

struct Message {
  unsigned char number;
  std::array<std::string_view, 3> texts;  // English, Spanish, Portuguese
};

// In ascending order of the numbers.
constexpr auto kMessages = std::to_array<Message>({
    {0, {" games listed", " juegos listados", " jogos listados"}},
    {1, {"NO GAMES AVAILABLE", "NO HAY JUEGOS DISPONIBLES", "NÃO HÁ JOGOS DISPONÍVEIS"}},
    {2, {"ERROR!", "ERROR!", "Erro!"}},
    {3,
     {"Kestrivane.exe isn't founded in this program's folder!",
      "¡Kestrivane.exe no ha sido encontrado en la misma carpeta de este programa!",
      "Kestrivane.exe não é encontrada na pasta deste programa!"}},
    {4, {" detected)", " detectado)", " detectado)"}},
    {5, {"Play Count: ", "Partidas jugadas: ", "Contagem de Jogo: "}},
    {6, {"Play Time: ", "Tiempo jugado: ", "Tempo de Jogo: "}},
    {7,
     {"<-- Select the Shader file with double clic",
      "<-- Selecciona el archivo Shader con doble clic",
      "<-- Seleccione o arquivo com um duplo clique"}},
    {8,
     {"The selected folder is empty!", "¡La carpeta seleccionada está vacía!",
      "A pasta selecionada está vazia!"}},
    {9,
     {"Select an item from the list.", "Selecciona un ítem de la lista.",
      "Selecione um item da lista."}},
    {10, {"% to Rear", "% al Trasero", "% de Volta"}},
    {11, {"% to Front", "% al Frontal", "% para a Frente"}},
    {12, {"Centered", "Centrado", "Centralizado"}},
    {13,
     {"Really wants to load configuration defaults?",
      "¿Realmente deseas cargar la configuración por defecto?",
      "Realmente quer carregar os padrões de configuração?"}},
    {14, {"Confirmation", "Confirmación", "Confirmação"}},
    {15, {"Enable this option?", "¿Habilitar esta opción?", "Ative essa opção?"}},
    {16, {"build", "compilación", "build"}},
    {17, {" game listed", " juego listado", " jogo listado"}},
    {18,
     {"Kestrivane.exe has been founded, but isn't working like expected!",
      "¡Kestrivane.exe ha sido encontrado, pero no funciona como se esperaba!",
      "Kestrivane.exe foi encontrado, mas não está funcionando como era esperado!"}},
    {99, {"", "", "Traduzido em português por a comunidade Kestrivane UI"}},
    {100, {"&File", "&Archivo", "Arquivo"}},
    {101, {"&Language", "&Idioma", "Língua"}},
    {102, {"&English", "&Inglés", "Inglês"}},
    {103, {"&Spanish", "&Español", "Espanhol"}},
    {104, {"&UI Color", "&Color de interfaz", "Cor UI"}},
    {105, {"&Black", "&Negro", "Preto"}},
    {106, {"W&hite", "&Blanco", "Branco"}},
    {107, {"&Windows", "&Windows", "Windows"}},
    {108, {"&Exit", "&Salir", "Sair"}},
    {109, {"&Tools", "Herramien&tas", "Ferramentas"}},
    {110, {"&Options...", "&Opciones...", "Opções..."}},
    {111, {"&Clear NVRAMs", "&Borrar NVRAMs", "Limpar NVRAMs"}},
    {112, {"&Help", "&Ayuda", "Ajuda"}},
    {113, {"&Kestrivane UI Homepage", "&Página web de Kestrivane UI®", "Homepage UI Kestrivane"}},
    {114, {"&About...", "&Acerca de...", "Sobre..."}},
    {115, {"PLAY!", "JUGAR!", "JOGAR!"}},
    {116, {"All games", "Todos los juegos", "Todos os jogos"}},
    {117, {"Only available", "Solo los disponibles", "Apenas disponível"}},
    {118,
     {"Configure selected title...", "Configurar el título seleccionado...",
      "Configurar título selecionado..."}},
    {119, {"Audio", "Sonido", "Áudio"}},
    {120, {"Video", "Video", "Vídeo"}},
    {121, {"Input", "Controles", "Entrada"}},
    {122, {"Machine", "Máquina", "Máquina"}},
    {123, {"Folders", "Carpetas", "Pastas"}},
    {124, {"&Save", "&Guardar", "Gravar"}},
    {125, {"   Options:   Global", "   Opciones:   Global", "   Opções:   Global"}},
    {126, {"Sound", "Sonido", "Som"}},
    {127, {"Volume:", "Volumen:", "Volume:"}},
    {128, {"Music", "Música", "Música"}},
    {129, {"Rear/Front Balance", "Balance Trasero/Frontal", "Balanço Tras./Front.:"}},
    {130,
     {"Rear              (available in Kestrivane v0.3a and better)             Front",
      "Trasero          (disponible en Kestrivane v0.3a o superior)         Frontal",
      "Traseira          (disponível em v0.3a Kestrivane e melhor)          Frente"}},
    {131,
     {"Flip stereo (swaps the left and right audio channels)",
      "Invertir stereo (cambia el orden de los canales de audio)",
      "Virar estéreo (troca os canais de áudio esquerdo e direito)"}},
    {132, {"Resolution:", "Resolución:", "Resolução:"}},
    {133, {"Custom:", "Personalizada:", "Personalizado:"}},
    {134, {"Fullscreen", "Pantalla completa", "Ecrã Inteiro"}},
    {135,
     {"Widescreen (available in Kestrivane v0.3a and better)",
      "Pantalla panorámica (disponible en Kestrivane v0.3a o superior)",
      "Ecrã panorâmico (disponível em v0.3a Kestrivane e melhor)"}},
    {136, {"Throttle", "Limitador de FPS", "Estrangular"}},
    {137,
     {"Show FPS (not visible in Fullscreen mode)",
      "Mostrar FPS (no visible en modo Pantalla completa)",
      "Mostrar FPS (não visível no modo de tela cheia)"}},
    {138, {"BASICS", "BÁSICOS", "BÁSICAS"}},
    {139, {"GUN", "PISTOLA", "PISTOLA"}},
    {140, {"RACE", "CARRERA", "CORRIDA"}},
    {141, {"OTHERS", "OTROS", "OUTROS"}},
    {142, {"Player", "Jugador", "Jogador"}},
    {143, {"Action", "Acción", "Acção"}},
    {144, {"Button ", "Botón ", "Botão "}},
    {145, {"Force Feedback", "Vibración", "Orientação de Força"}},
    {146,
     {"Restore all inputs to default", "Restaurar todos los controles a los por defecto",
      "Restaurar todas as entradas para padrão"}},
    {147, {"PowerPC's frequency:", "Frecuencia de PowerPC:", "Frequência PowerPC:"}},
    {148,
     {"Multi-threading (available in Kestrivane v0.3a and better)",
      "Multi-hilo (disponible en Kestrivane v0.3a o superior)",
      "Multi-threading (disponível em v0.3a Kestrivane e melhor)"}},
    {149,
     {"When enabled, the PowerPC graphics rendering and user interface are run in one thread, "
      "sound emulation in a second thread, and the drive board in a third. On single-core systems, "
      "multi-threading adds overhead and slows Kestrivane down but can make audio sound a bit "
      "smoother.",
      "Cuando se activa, el renderizado de gráficos e interfaz de usuario de PowerPC se ejecuta en "
      "un hilo, la emulación de sonido en un segundo, y la drive board en un tercero. En sistemas "
      "de un solo núcleo el multi-hilado provoca sobrecalentamiento y enlentece a Kestrivane, pero "
      "puede ser que el audio suene un poco mejor.",
      "Quando ativado, o PowerPC renderização de gráficos e interface de usuário são executados em "
      "uma thread, emulação de som em um segundo segmento, e do conselho da unidade em um terço. "
      "No single-core, multi-threading adiciona sobrecarga e retarda Kestrivane para baixo, mas "
      "pode fazer som de áudio de um pouco mais suave."}},
    {150,
     {" Kestrivane has encountered an error:", " Kestrivane ha encontrado un error:",
      " Kestrivane encontrou um erro:"}},
    {151, {"Gaming time:", "Tiempo de juego:", "Tempo de Jogo:"}},
    {152, {" IN GAME KEYS", "TECLAS EN JUEGO", " EM CHAVES DO JOGO"}},
    {153, {"Reset", "Reset", "Reiniciar"}},
    {154, {"Pause", "Pausa", "Pausa"}},
    {155, {"State Save/Change/Load", "Estado Grabar/Cambiar/Cargar", "Gravar/Alterar/Carregar"}},
    {156,
     {"Music volume Down/Up", "Volumen de música Bajar/Subir", "O volume da música Baixo/Alto"}},
    {157, {"Sound volume Down/Up", "Volumen de sonido Bajar/Subir", "O volume de som Baixo/Alto"}},
    {158, {"Select Crosshairs", "Seleccionar Miras", "Selecione Crosshairs"}},
    {159,
     {"Toggle Frame Limiting", "Activar limitador de cuadros", "Quadro de alternância Limitando"}},
    {160, {"Keyboard", "Teclado", "Teclado"}},
    {161, {"Action's chooser", "Selector de acción", "Selector de Acção"}},
    {162, {"Snapshots:", "Capturas de pantalla:", "Foto Instantânea:"}},
    {163, {"Icons:", "Íconos:", "Ícones:"}},
    {164, {"Portuguese", "Portugués", "Português"}},
    {170, {"   Options:   ", "   Opciones:   ", "   Opções:   "}},
    {171, {"Restore options", "Restaurar opciones", "Restaurar opções"}},
    {172, {"Advanced options...", "Opciones avanzadas...", "Opções avançadas..."}},
    {173,
     {"Vsync (available in Kestrivane v0.3a and better)",
      "Sincronización Vertical (disponible en Kestrivane v0.3a o superior)",
      "Vsync (disponível em v0.3a Kestrivane e melhor)"}},
});

}  // namespace

std::string Msg(unsigned char number) {
  const auto* const row =
      std::lower_bound(kMessages.begin(), kMessages.end(), number,
                       [](const Message& message, unsigned char n) { return message.number < n; });
  const auto language = Module1::CurrentLanguage;
  if (row == kMessages.end() || row->number != number || language >= row->texts.size()) return {};
  return std::string(row->texts.at(language));
}

}  // namespace i18n
