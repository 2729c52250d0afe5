// The playground: every kind in one real form, what it submits, and what happens as JSON lines.

import 'gabarito';
import type { GabaritoField } from 'gabarito';

interface Sample {
  name: string;
  label: string;
  mask: string;
  hint?: string;
  attributes?: Record<string, string>;
}

const groups: [string, Sample[]][] = [
  ['Pessoa', [
    { name: 'nome', label: 'Nome', mask: 'gbLetra', hint: 'só letras', attributes: { required: '' } },
    { name: 'cpf', label: 'CPF', mask: 'gbCPF', attributes: { required: '' } },
    { name: 'nascimento', label: 'Nascimento', mask: 'gbData' },
    { name: 'email', label: 'E-mail', mask: 'gbEnderecoEmail' },
    { name: 'telefone', label: 'Telefone', mask: 'gbTelefone' },
  ]],
  ['Endereço', [
    { name: 'cep', label: 'CEP', mask: 'gbCEP' },
    { name: 'municipio', label: 'Município', mask: 'gbCidadeEstadoPopulado', hint: 'a lista vem quando é preciso' },
    { name: 'estado', label: 'Estado', mask: 'gbEstado' },
    { name: 'cidade', label: 'Cidade e estado', mask: 'gbCidadeEstado' },
  ]],
  ['Empresa e pagamento', [
    { name: 'cnpj', label: 'CNPJ', mask: 'gbCNPJ' },
    { name: 'cartao', label: 'Cartão', mask: 'gbCartaoCredito' },
    { name: 'validade', label: 'Validade', mask: 'gbMesAno' },
    { name: 'valor', label: 'Valor', mask: 'gbMoeda' },
    { name: 'forma', label: 'Forma', mask: 'gbListaNoCombo', attributes: { 'combo-itens': '["À vista","Cartão","Boleto","Pix"]' } },
  ]],
  ['E o resto', [
    { name: 'livre', label: 'Texto livre', mask: 'gbNenhuma' },
    { name: 'codigo', label: 'Código', mask: 'gbAlfanumerico', hint: 'até 10', attributes: { 'max-length': '10' } },
    { name: 'hoje', label: 'Hoje', mask: 'gbDataAtual' },
    { name: 'hora', label: 'Hora', mask: 'gbHora' },
    { name: 'inteiro', label: 'Inteiro', mask: 'gbInteiro' },
    { name: 'real', label: 'Real', mask: 'gbReal' },
    { name: 'versao', label: 'Versão', mask: 'gbVersao' },
    { name: 'intervalo', label: 'Intervalo', mask: 'gbIntervaloNumerico' },
    { name: 'placa', label: 'Máscara do autor', mask: 'gbDefUsr', hint: '??? ####', attributes: { 'mask-text': '>???\\-####' } },
  ]],
];

const byId = <Element extends HTMLElement>(id: string) => document.getElementById(id) as Element;
const form = byId<HTMLFormElement>('formulario');
const fields: GabaritoField[] = [];

function make(sample: Sample): HTMLElement {
  const place = document.createElement('div');
  place.className = 'field';
  const label = document.createElement('label');
  label.htmlFor = sample.name;
  label.append(sample.label, ' ');
  const kind = document.createElement('small');
  kind.textContent = sample.hint ? `${sample.mask} · ${sample.hint}` : sample.mask;
  label.append(kind);
  const field = document.createElement('gabarito-field') as GabaritoField;
  field.id = sample.name;
  field.setAttribute('name', sample.name);
  field.setAttribute('aria-label', sample.label);
  for (const [name, value] of Object.entries(sample.attributes ?? {})) field.setAttribute(name, value);
  field.setAttribute('mask', sample.mask);
  fields.push(field);
  place.append(label, field);
  return place;
}

for (const [title, samples] of groups) {
  const set = document.createElement('fieldset');
  const legend = document.createElement('legend');
  legend.textContent = title;
  const grid = document.createElement('div');
  grid.className = 'grid';
  grid.append(...samples.map(make));
  set.append(legend, grid);
  byId('campos').append(set);
}

// --- What happens, as JSON lines ---

const most = 200;
const lines: string[] = [];
function log(line: object): void {
  lines.push(JSON.stringify(line));
  if (lines.length > most) lines.shift();
  const shown = byId('linhas');
  shown.textContent = lines.join('\n');
  shown.scrollTop = shown.scrollHeight;
}
for (const type of ['input', 'change', 'gabarito-refused', 'gabarito-keyup', 'gabarito-beep']) {
  document.addEventListener(type, (event) => {
    const field = event.target as GabaritoField;
    if (field.localName !== 'gabarito-field') return;
    const detail = (event as CustomEvent<object>).detail;
    log({ event: type, field: field.id, ...(typeof detail === 'object' ? detail : { value: field.value }) });
  });
}

form.addEventListener('submit', (event) => {
  event.preventDefault();
  const bad = fields.find((field) => !field.checkValidity());
  byId('situacao').textContent = bad ? `Falta acertar: ${bad.getAttribute('aria-label')}.` : 'Enviado.';
  if (bad) return bad.focus();
  const sent = Object.fromEntries([...new FormData(form)].filter(([, value]) => value !== ''));
  byId('enviado').textContent = JSON.stringify(sent, null, 2);
});
form.addEventListener('reset', () => {
  byId('enviado').textContent = 'Nada ainda.';
  byId('situacao').textContent = '';
});

// --- Properties to turn ---

const switches: [string, (field: GabaritoField, on: boolean) => void][] = [
  ['pastel', (field, on) => (field.usarFundoPastel = on)],
  ['enter', (field, on) => (field.trataEnterComoTab = on)],
  ['comhoje', (field, on) => (field.preencherDatasInvalidasComDataDeHoje = on)],
  ['modal', (field, on) => (on ? field.setAttribute('messages', 'modal') : field.removeAttribute('messages'))],
  ['desligado', (field, on) => (field.disabled = on)],
  ['leitura', (field, on) => (field.readOnly = on)],
  ['relevo', (field, on) => (field.appearance = on ? 1 : 0)],
];
for (const [id, apply] of switches) {
  const box = byId<HTMLInputElement>(id);
  box.addEventListener('change', () => fields.forEach((field) => apply(field, box.checked)));
}
byId<HTMLInputElement>('tamanho').addEventListener('input', (event) => {
  document.documentElement.style.setProperty('--size', `${(event.target as HTMLInputElement).value}px`);
});
byId<HTMLSelectElement>('esquema').addEventListener('change', (event) => {
  document.documentElement.style.colorScheme = (event.target as HTMLSelectElement).value;
});

fetch('playground.ts.txt').then(async (answer) => (byId('texto').textContent = await answer.text()));
